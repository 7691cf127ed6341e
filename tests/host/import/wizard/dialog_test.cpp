#include "SheetBuilder.h"

#include "AsciiImportWizardCtrl.h"
#include "AsciiImportWizardStrategyCustom.h"
#include "AsciiImportWizardStrategyGas.h"
#include "AsciiImportWizardStrategySR.h"
#include "WorkbookModel.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QTranslator>

#include <functional>

namespace {

using Deed = std::function<void(QDialog&)>;
using Custom = AsciiImportWizardStrategyCustom;

class French : public QTranslator {
public:
    QString translate(const char* context, const char*, const char* french, int) const override {
        return context[0] == 'Q' ? QString() : QString::fromUtf8(french);
    }
    bool isEmpty() const override { return false; }
};

class Wizard : public WizardTest {
protected:
    Wizard() : table(book(), "analyses.xlsx") {}

    // A clean table, and a second sheet.
    static Workbook::Book book() {
        Workbook::Book made;
        made.sheets = {sheetOf({{"Sample", "TOC (%)", "Colour"}, {"A", "1,5", "red"}, {"B", "<1", "blue"}}),
                       sheetOf({{"ID", "x"}, {7, 8}})};
        made.sheets[1].name = "Other";
        return made;
    }

    // Runs the wizard and does the deed once it is shown.
    QString run(AsciiImportWizardStrategy* strategy, const Deed& deed) {
        bool isDone = false;
        QTimer::singleShot(0, &table, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            deed(*dialog);
            isDone = true;
        });
        wizard.initExec(&table, strategy);
        EXPECT_TRUE(isDone);
        return wizard.createModel() == nullptr ? QString("nothing") : contentOf(*wizard.createModel());
    }

    static void press(QDialog& dialog, int key) {
        QWidget* focus = dialog.focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &dialog, static_cast<Qt::Key>(key));
    }

    AsciiImportWizardCtrl wizard;
    WorkbookModel table;
};

} // namespace

TEST_F(Wizard, imports_a_clean_table_at_a_press_of_enter) {
    EXPECT_EQ(run(new Custom, [](QDialog& dialog) { press(dialog, Qt::Key_Return); }),
              "Sample|TOC (%)|Colour\nA|#1.5#|red\nB|<1|blue");
    EXPECT_EQ(wizard.createModel()->headerData(0, Qt::Vertical, 5), "Sample");
    EXPECT_NE(qobject_cast<VKDataModelGeneric*>(wizard.createModel()), nullptr);
    EXPECT_EQ(run(new AsciiImportWizardStrategySR, [](QDialog& dialog) { press(dialog, Qt::Key_Return); }),
              "Sample|TOC\nA|#1.5#\nB|<1");
}

TEST_F(Wizard, cancelling_imports_and_remembers_nothing) {
    const auto cancel = [](QDialog& dialog) { dialog.findChild<QPushButton*>("cancel")->click(); };
    EXPECT_EQ(run(new Custom, cancel), "nothing");
    EXPECT_EQ(run(new Custom, [](QDialog& dialog) { press(dialog, Qt::Key_Escape); }), "nothing");
    EXPECT_EQ(run(new Custom, [](QDialog& dialog) { dialog.close(); }), "nothing");
    EXPECT_TRUE(QSettings().allKeys().isEmpty());
    wizard.initExec(nullptr, new Custom);
    EXPECT_EQ(wizard.createModel(), nullptr);
}

TEST_F(Wizard, owns_strategy_and_model_until_the_next_run) {
    const QPointer<AsciiImportWizardStrategy> first = new Custom;
    const auto accept = [](QDialog& dialog) { dialog.accept(); };
    run(first, accept);
    const QPointer<QAbstractItemModel> model = wizard.createModel();
    EXPECT_EQ(wizard.createModel(), model);
    EXPECT_FALSE(first.isNull());
    run(new Custom, accept);
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(model.isNull());
}

TEST_F(Wizard, ends_with_the_window_it_belongs_to) {
    auto* window = new QWidget;
    window->show();
    window->activateWindow();
    QCoreApplication::processEvents();
    ASSERT_EQ(QApplication::activeWindow(), window);
    EXPECT_EQ(run(new Custom,
                  [window](QDialog& dialog) {
                      EXPECT_EQ(dialog.parentWidget(), window);
                      delete window;
                  }),
              "nothing");
}

TEST_F(Wizard, blocks_the_import_of_names_alone) {
    QString told;
    run(new AsciiImportWizardStrategyGas, [&](QDialog& dialog) {
        told = dialog.findChild<QTextBrowser*>("notices")->toPlainText();
        EXPECT_FALSE(dialog.findChild<QPushButton*>("import")->isEnabled());
        press(dialog, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        dialog.reject();
    });
    EXPECT_TRUE(told.contains("Nothing but the names of the samples would be imported")) << qPrintable(told);
}

TEST_F(Wizard, shows_what_is_chosen) {
    const auto deed = [](QDialog& dialog) {
        auto* columns = dialog.findChild<QTableView*>("columns");
        auto* preview = dialog.findChild<QTableView*>("preview");
        const auto shown = [preview](int row, int column) { return preview->model()->index(row, column); };
        EXPECT_EQ(shown(1, 1).data(), "1.5");
        EXPECT_TRUE(shown(1, 1).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
        columns->model()->setData(columns->model()->index(1, 4), Qt::Unchecked, Qt::CheckStateRole);
        EXPECT_EQ(shown(1, 1).data(), "1,5") << "a text again";
        dialog.findChild<QComboBox*>("identifier")->setCurrentIndex(2);
        dialog.findChild<QSpinBox*>("firstDataRow")->setValue(3);
        EXPECT_EQ(preview->model()->headerData(1, Qt::Horizontal), "B\nTOC (%)");
        EXPECT_EQ(shown(2, 1).data(Qt::ToolTipRole), "<span>&lt;1</span>") << "no markup of the file's";

        // The list of choices opens over its cell; Return in it chooses and does not import.
        columns->setCurrentIndex(columns->model()->index(1, 3));
        columns->setFocus();
        QTest::keyClick(columns, Qt::Key_F2);
        auto* box = columns->findChild<QComboBox*>();
        ASSERT_NE(box, nullptr);
        box->setCurrentIndex(ColumnMapping::notImported);
        QTest::keyClick(box, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(columns->model()->index(1, 3).data(), "Not imported");
        press(dialog, Qt::Key_Return);
    };
    EXPECT_EQ(run(new Custom, deed), "Sample|Colour\nB|blue")
        << "other rows are proposed anew, so the first column names the samples again";
}

TEST_F(Wizard, chooses_among_the_sheets_of_a_book) {
    EXPECT_EQ(run(new Custom,
                  [](QDialog& dialog) {
                      EXPECT_EQ(dialog.windowTitle(), "Import of analyses.xlsx");
                      dialog.findChild<QComboBox*>("sheet")->setCurrentIndex(1);
                      dialog.accept();
                  }),
              "ID|x\n#7#|#8#");
}

TEST_F(Wizard, fits_a_small_screen_in_both_languages) {
    const auto check = [](QDialog& dialog) {
        const QSize least = dialog.minimumSizeHint();
        EXPECT_LE(least.width(), 1000);
        EXPECT_LE(least.height(), 700);
        EXPECT_LE(dialog.width(), 1000);
        EXPECT_LE(dialog.height(), 700);
        dialog.reject();
    };
    run(new Custom, check);
    French french;
    QCoreApplication::installTranslator(&french);
    run(new Custom, [&](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QPushButton*>("import")->text(), "Importer");
        check(dialog);
    });
}
