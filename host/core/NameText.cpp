#include "NameText.h"

#include <algorithm>

namespace {

bool breaksTheLine(QChar letter) {
    const QChar::Category category = letter.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

} // namespace

QString NameText::onOneLine(QString name) {
    std::replace_if(name.begin(), name.end(), breaksTheLine, QLatin1Char(' '));
    return name;
}

QString NameText::folded(const QString& name) {
    return onOneLine(name).normalized(QString::NormalizationForm_C).toCaseFolded();
}
