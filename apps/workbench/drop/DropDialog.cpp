#include "DropDialog.h"

#include "TPlainTip.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QTreeWidget>
#include <QVBoxLayout>

using Target = DropChoice::Target;

namespace {

enum Column { NameColumn, CountColumn, ChoiceColumn, ColumnCount };

constexpr int mostNames = 500; // that are listed of a kind
constexpr int mostShownAtOnce = 4;
constexpr QSize startSize(860, 440); // the reasons why files are left out take most of it
constexpr int nameWidth = 330;
constexpr int targetRole = Qt::UserRole;
constexpr int pathRole = Qt::UserRole + 1;

} // namespace

DropDialog::DropDialog(const DropGroups& groups, QWidget* parent)
    : QDialog(parent), m_groups(groups), m_list(new QTreeWidget(this)) {
    setWindowTitle(tr("Bring files in", "Importer des fichiers"));
    auto* const intro = new QLabel(tr("Check what becomes of the files, then press Import. Tables pass "
                                      "through the column wizard one by one.",
                                      "Vérifiez ce que deviennent les fichiers, puis cliquez sur Importer. "
                                      "Les tableaux passent un à un par l'assistant des colonnes."));
    intro->setWordWrap(true);
    m_list->setHeaderLabels({tr("Files", "Fichiers"), tr("Number", "Nombre"), tr("What to do", "Que faire")});
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    m_list->setAccessibleName(tr("Files by kind", "Fichiers par type"));
    for (const DropGroups::Group& group : m_groups.groups()) {
        addGroup(group);
    }
    m_list->header()->setStretchLastSection(true);
    m_list->setColumnWidth(NameColumn, nameWidth);
    m_list->resizeColumnToContents(CountColumn);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto* const go = buttons->addButton(tr("Import", "Importer"), QDialogButtonBox::AcceptRole);
    go->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    resize(startSize);
    go->setFocus();
}

void DropDialog::addGroup(const DropGroups::Group& group) {
    auto* const row = new QTreeWidgetItem(m_list);
    row->setText(NameColumn, nameOf(group.kind));
    row->setText(CountColumn, QLocale().toString(group.files.size()));
    row->setTextAlignment(CountColumn, Qt::AlignCenter);
    addNames(*row, group);
    row->setExpanded(group.files.size() <= mostShownAtOnce);
    QComboBox* const box = choiceOf(group);
    m_boxes.append(box);
    if (box != nullptr) {
        box->setAccessibleName(nameOf(group.kind));
        m_list->setItemWidget(row, ChoiceColumn, box);
        return;
    }
    row->setText(ChoiceColumn, tr("Leave out", "Laisser de côté"));
}

void DropDialog::addNames(QTreeWidgetItem& row, const DropGroups::Group& group) {
    for (int number = 0; number < qMin(mostNames, group.files.size()); ++number) {
        const SortedFile& file = group.files[number];
        const QFileInfo info(file.path);
        auto* const name = new QTreeWidgetItem(&row, QStringList(info.fileName()));
        name->setToolTip(NameColumn, TPlainTip::of(QDir::toNativeSeparators(file.path)));
        const QString reason = QTextDocumentFragment::fromHtml(file.reason).toPlainText();
        name->setText(ChoiceColumn, reason);
        name->setToolTip(ChoiceColumn, TPlainTip::of(reason));
    }
    if (group.files.size() > mostNames) {
        const QString more = tr("and %1 more", "et %1 autres");
        new QTreeWidgetItem(&row, QStringList(more.arg(QLocale().toString(group.files.size() - mostNames))));
    }
}

QComboBox* DropDialog::choiceOf(const DropGroups::Group& group) {
    const QVector<Target> offers = m_groups.offersFor(group.kind);
    if (offers.size() < 2) {
        return nullptr;
    }
    auto* const box = new QComboBox;
    for (const Target target : offers) {
        const int projects = target == Target::Open ? group.files.size() : 1;
        for (int number = 0; number < projects; ++number) {
            const QString& path = group.files[number].path;
            const QString text = target == Target::Open
                                     ? tr("Open %1", "Ouvrir %1").arg(QFileInfo(path).fileName())
                                     : textOf(target);
            box->addItem(text, static_cast<int>(target));
            box->setItemData(box->count() - 1, path, pathRole);
        }
    }
    return box;
}

QString DropDialog::textOf(Target target) {
    switch (target) {
    case Target::SourceRock:
        return tr("Source rock import", "Import roche mère");
    case Target::Gas:
        return tr("Gas import", "Import gaz");
    case Target::Custom:
        return tr("Custom import", "Import personnalisé");
    default:
        return tr("Leave out", "Laisser de côté");
    }
}

QVector<DropChoice> DropDialog::choicesOf(const DropGroups::Group& group, int line) const {
    const QComboBox* const box = m_boxes[line];
    if (box == nullptr) {
        return {};
    }
    DropChoice chosen{static_cast<Target>(box->currentData(targetRole).toInt()), {}};
    const QString opened = chosen.target == Target::Open ? box->currentData(pathRole).toString() : QString();
    DropChoice left;
    for (const SortedFile& file : group.files) {
        const bool isLeft = !opened.isEmpty() && file.path != opened;
        (isLeft ? left : chosen).paths.append(file.path);
    }
    return left.paths.isEmpty() ? QVector<DropChoice>{chosen} : QVector<DropChoice>{chosen, left};
}

QVector<DropChoice> DropDialog::choices() const {
    QVector<DropChoice> all;
    for (int line = 0; line < m_boxes.size(); ++line) {
        all += choicesOf(m_groups.groups()[line], line);
    }
    return all;
}
