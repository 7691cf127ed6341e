#include "ImportFixture.h"

#include "TInputsDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

namespace {

/// Answers one modal dialog after the other, and notes what each showed.
class Answers : public QObject {
public:
    using Answer = std::function<void(QWidget&)>;

    explicit Answers(QVector<Answer> answers) : m_left(std::move(answers)) {
        connect(&m_timer, &QTimer::timeout, this, &Answers::next);
        m_timer.start(1);
    }
    ~Answers() override { EXPECT_TRUE(m_left.isEmpty()) << m_left.size() << " dialogs never came"; }

    QStringList shown;

    static Answer press(int button) {
        return [button](QWidget& box) { dynamic_cast<QMessageBox&>(box).buttons().at(button)->click(); };
    }
    static Answer type(const QString& text) {
        return [text](QWidget& dialog) {
            dialog.findChild<QLineEdit*>()->setText(text);
            dynamic_cast<QDialog&>(dialog).accept();
        };
    }
    static Answer reject() {
        return [](QWidget& dialog) { dynamic_cast<QDialog&>(dialog).reject(); };
    }
    static Answer close() {
        return [](QWidget& dialog) { dialog.close(); };
    }

private:
    void next() {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog == nullptr) {
            return;
        }
        const auto* const box = qobject_cast<QMessageBox*>(dialog);
        const auto* const input = dialog->findChild<QLineEdit*>();
        shown += box != nullptr ? box->text() : input->text();
        if (m_left.isEmpty()) {
            ADD_FAILURE() << "one dialog too many: " << shown.last().toStdString();
            dialog->close();
            return;
        }
        m_left.takeFirst()(*dialog);
    }

    QVector<Answer> m_left;
    QTimer m_timer;
};

constexpr int overwriteButton = 0;
constexpr int renameButton = 1;
constexpr int cancelButton = 2;

QString question(const QString& name) {
    return QString("A dataset named <b>%1</b> already exists, do you want to overwrite  it?").arg(name);
}

} // namespace

class DatasetNaming : public ImportTest {
protected:
    DatasetNaming() { store("old"); }

    void store(const QString& id) {
        VKDataModelGeneric table;
        fill(table, {"ID"}, {{id}});
        module.saveDatasets(&table, "a.xls");
    }

    TestCtrl module;
};

TEST_F(DatasetNaming, overwrite_replaces_what_was_there) {
    Answers answers({Answers::press(overwriteButton)});
    store("new");
    EXPECT_EQ(answers.shown, QStringList(question("Lab-a.xls")));
    EXPECT_EQ(sampleNames("Lab-a.xls"), QStringList({"Sample new", "Lab"}));
}

TEST_F(DatasetNaming, rename_asks_again_until_the_name_is_free) {
    project->addWell("taken & gone");
    Answers answers({Answers::press(renameButton), Answers::reject(), Answers::press(renameButton),
                     Answers::type("taken & gone"), Answers::press(renameButton), Answers::type("free")});
    store("new");
    EXPECT_EQ(answers.shown, QStringList({question("Lab-a.xls"), "Lab-a.xls", question("Lab-a.xls"),
                                          "Lab-a.xls", question("taken &amp; gone"), "taken & gone"}));
    EXPECT_EQ(sampleNames("Lab-a.xls"), QStringList({"Sample old", "Lab"}));
    EXPECT_EQ(sampleNames("free"), QStringList({"Sample new", "Lab"}));
}

TEST_F(DatasetNaming, cancel_and_every_way_to_close_the_question_change_nothing) {
    for (const Answers::Answer& answer :
         {Answers::press(cancelButton), Answers::reject(), Answers::close()}) {
        Answers answers({answer});
        EXPECT_EQ(failure([this] { store("new"); }),
                  "The import of the dataset <b>Lab-a.xls</b> has been canceled by the user");
        EXPECT_EQ(sampleNames("Lab-a.xls"), QStringList({"Sample old", "Lab"}));
    }
}

TEST_F(DatasetNaming, without_a_project_nothing_is_asked) {
    host.project = nullptr;
    Answers none({});
    EXPECT_EQ(failure([this] { store("new"); }),
              "An error occurred while saving dataset generated from file: <b>a.xls</b>");
}

TEST_F(DatasetNaming, the_dialogs_have_these_texts_in_both_languages) {
    const auto texts = [](QStringList& into) {
        return [&into](QWidget& dialog) {
            into += dialog.windowTitle();
            if (auto* const box = qobject_cast<QMessageBox*>(&dialog)) {
                EXPECT_EQ(box->icon(), QMessageBox::Warning);
                EXPECT_EQ(box->parent(), nullptr);
                into += box->text();
                for (QAbstractButton* const button : box->buttons()) {
                    EXPECT_EQ(box->buttonRole(button), QMessageBox::ActionRole);
                    into += button->text();
                }
                return box->buttons().at(into.size() > 5 ? cancelButton : renameButton)->click();
            }
            const auto* const input = dialog.findChild<QLineEdit*>();
            into += {dialog.findChild<QLabel*>()->text(), input->toolTip()};
            dialog.close();
        };
    };
    QStringList english;
    {
        Answers answers({texts(english), texts(english), texts(english)});
        failure([this] { store("new"); });
    }
    EXPECT_EQ(english.mid(0, 8),
              QStringList({"Vorn Import module", question("Lab-a.xls"), "Overwrite", "Rename",
                           "Cancel import", "Defining of the dataset name to be saved",
                           "Dataset name:", "Type the dataset name to be saved"}));
    const FrenchTexts translator;
    QStringList french;
    Answers answers({texts(french), texts(french), texts(french)});
    EXPECT_EQ(failure([this] { store("new"); }),
              "L'import de l'ensemble de données <b>Lab-a.xls</b> a été annulé par l'utilisateur");
    EXPECT_EQ(french.mid(0, 8),
              QStringList({"Module d'import Vorn",
                           "Un ensemble de données portant le nom <b>Lab-a.xls</b> existe déjà. Voulez-vous "
                           "l'écraser ?",
                           "Écraser", "Renommer", "Annuler l'import",
                           "Définition du nom de l'ensemble de données à sauvegarder",
                           "Nom de l'ensemble de données:",
                           "Entrez l'ensemble de données du dataset à sauvegarder"}));
}
