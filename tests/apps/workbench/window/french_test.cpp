#include "ExampleProject.h"
#include "ModalAnswers.h"
#include "ModuleObserver.h"
#include "ProjectTree.h"
#include "TDatabase.h"
#include "VKListViewSignal.h"
#include "VKRibbonModuleBar.h"
#include "WorkbenchFixture.h"
#include "WorkbookFile.h"
#include "Workspace.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTabBar>
#include <QTextDocumentFragment>

namespace {

using Texts = QSet<QString>;

/// What a model says to who looks at its first rows.
void addModel(const QAbstractItemModel* model, Texts& texts) {
    if (model == nullptr) {
        return;
    }
    for (int column = 0; column < qMin(model->columnCount(), 12); ++column) {
        texts += model->headerData(column, Qt::Horizontal).toString();
        for (int row = 0; row < qMin(model->rowCount(), 60); ++row) {
            const QModelIndex cell = model->index(row, column);
            texts += cell.data().toString();
            texts += cell.data(Qt::ToolTipRole).toString();
        }
    }
}

void addWidget(const QWidget& widget, Texts& texts) {
    const bool isTyped = qobject_cast<const QLineEdit*>(&widget) != nullptr;
    for (const char* const name : {"windowTitle", "toolTip", "statusTip", "whatsThis", "accessibleName",
                                   "accessibleDescription", "title", "placeholderText", "prefix", "suffix",
                                   "specialValueText", "informativeText", isTyped ? "" : "text"}) {
        texts += widget.property(name).toString();
    }
    if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int index = 0; index < tabs->count(); ++index) {
            texts += tabs->tabText(index);
        }
    }
    if (const auto* const box = qobject_cast<const QComboBox*>(&widget)) {
        addModel(box->model(), texts);
    }
    if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget)) {
        addModel(view->model(), texts);
    }
    for (const QAction* const action : widget.actions()) {
        texts += {action->text(), action->toolTip(), action->statusTip()};
    }
}

class French : public WorkbenchFixture {
protected:
    /// All that the window and whatever is open can say at this moment.
    void addAll() {
        for (const QWidget* const widget : QApplication::allWidgets()) {
            addWidget(*widget, texts);
        }
    }
    template <class Act>
    void answering(const QStringList& answers, const Act& act) {
        ModalAnswers modal(answers);
        modal.setObserver([this](QWidget&) { addAll(); });
        act();
        settle();
        addAll();
    }
    /// One visit of everything, in one language.
    Texts visit(LanguageSwitch::Language language, const QStringList& answers) {
        start();
        texts.clear();
        workbench->language().choose(language);
        workbench->projects().create(path("lab.vornproj"), &ExampleProject::fill);
        workbench->qualityCheck().exportForLearning(); // before it is open
        for (const QString& answer : answers) {
            answering({answer}, [this] { workbench->intake().take({path("lab")}); });
        }
        tree().findChild<QAbstractItemView*>()->selectAll();
        tree().sendAction()->trigger();
        workbench->qualityCheck().list()->selectAll();
        workbench->qualityCheck().bar()->slotEventOccured(ModuleObserver::dataEditorAction);
        ApplicationInterface::returnMe()->showHelp(0);
        settle();
        addAll();
        answering({"Cancel", "Annuler"}, [this] { workbench->projectCommands().serverAction()->trigger(); });
        QMetaObject::invokeMethod(workbench->window().findChild<QMenu*>(), "aboutToShow");
        addAll();
        addModel(&workbench->log(), texts);
        return texts;
    }

    Texts texts;
};

/// A text without names of files and without numbers; empty if no word is left.
QString ownWords(const QString& text) {
    static const QRegularExpression names(R"(\S+\.(S00|s00|R00|xlsx?|md|vornproj|tcm|dat|txt)\b|/\S*|\d)");
    const QString own =
        QTextDocumentFragment::fromHtml(text).toPlainText().remove('&').remove(names).trimmed();
    return own.contains(QRegularExpression("[A-Za-z]{3,}")) ? own : QString();
}

/// The same in both languages: words they share, and the fixed words of the modules and of the toolkit.
const QStringList shared{"A Sample",    "A – Sample",  "Guide",        "Sample",     "Actions",
                         "Analyses",    "Date",        "English",      "Français",   "Lab",
                         "Information", "Message",     "Messages",     "Module",     "Modules",
                         "Points",      "Quality",     "Color legend", "Gas data",   "Import data",
                         "Source rock", "Source Rock", "Status",       "good",       "double",
                         "flat",        "Scroll Left", "Scroll Right", "postgresql:"};

} // namespace

TEST_F(French, no_text_of_the_whole_window_and_its_dialogs_stays_english) {
    QDir().mkpath(path("lab"));
    for (const QString name : {"good-clean-01.R00", "good-missing-seconds-01.S00", "README.md"}) {
        QFile::copy(VORN_EXAMPLES "/" + name, path("lab/") + name);
    }
    writeWorkbook(path("lab/gas.xlsx"), {"Sample", "C1 (%)"}, {{"A1", 91.5}, {"A2", "<0.02"}});
    writeWorkbook(path("lab/custom.xlsx"), {"Sample", "P9 (mg/g)"}, {{"A1", 1.5}, {"A2", "?"}});
    using Language = LanguageSwitch::Language;
    const Texts english = visit(Language::English, {"Import", "Overwrite"});
    const Texts french = visit(Language::French, {"Importer", "Écraser"});
    EXPECT_GT(french.size(), 200);
    QStringList left;
    for (const QString& text : french) {
        const QString own = english.contains(text) ? ownWords(text) : QString();
        if (!own.isEmpty() && !shared.contains(own)) {
            left.append(own.left(160));
        }
    }
    EXPECT_TRUE(left.isEmpty()) << left.join("\n").toStdString();
}
