#include "TextPairs.h"

#include "VKError.h"

#include <QTextCodec>

TextPairs::Table TextPairs::read(const QByteArray& bytes, const QString& fileName) {
    if (bytes.contains('\0')) {
        refuse(fileName, tr("it holds no text", "il ne contient pas de texte"));
    }
    if (bytes.count('\n') >= maxLines) {
        refuse(fileName, tr("it has more than %1 lines", "il a plus de %1 lignes").arg(maxLines));
    }
    Table table;
    const QString text = textOf(bytes);
    const QVector<QStringRef> lines = text.splitRef('\n');
    for (int row = 0; row < lines.size(); ++row) {
        readLine(lines[row].trimmed().toString(), row + 1, table);
    }
    if (table.pairs.isEmpty()) {
        refuse(fileName, tr("no line of it has two columns, separated by a tab or a semicolon",
                            "aucune de ses lignes n'a deux colonnes, séparées par une tabulation ou un "
                            "point-virgule"));
    }
    return table;
}

void TextPairs::readLine(const QString& line, int number, Table& table) {
    if (line.isEmpty()) {
        return;
    }
    const QStringList fields = line.split(line.contains('\t') ? '\t' : ';');
    if (fields.size() == 2 && !fields[0].trimmed().isEmpty() && !fields[1].trimmed().isEmpty()) {
        table.pairs.append({fields[0].trimmed(), fields[1].trimmed()});
    } else if (table.warnings.size() < maxWarnings) {
        table.warnings.append(
            {number, tr("not two filled columns, left out", "pas deux colonnes remplies, ligne ignorée")});
    }
}

QString TextPairs::textOf(const QByteArray& bytes) {
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars + state.remainingChars == 0 ? text : QString::fromLatin1(bytes);
}

void TextPairs::refuse(const QString& fileName, const QString& cause) {
    throw VKError(
        tr("The file <b>%1</b> can't be imported: %2; save the table as text of two columns",
           "Le fichier <b>%1</b> ne peut pas être importé : %2 ; enregistrez le tableau comme texte "
           "de deux colonnes")
            .arg(fileName.toHtmlEscaped(), cause));
}
