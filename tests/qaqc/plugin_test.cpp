#include <gtest/gtest.h>

#include <QFile>
#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>
#include <QTranslator>

namespace {

const QStringList carried{":/tr/vorn-es.qm", ":/tr/vorn-en.qm", ":/rcc/png/delete_generic.png"};

QString exportedSymbols() {
    QProcess nm;
    nm.start("nm", {"-D", "-C", "--defined-only", VORN_LIBRARY});
    EXPECT_TRUE(nm.waitForFinished());
    return QString::fromUtf8(nm.readAllStandardOutput());
}

} // namespace

TEST(Plugin, its_resources_are_there_from_load_to_unload) {
    for (const QString& path : carried) {
        EXPECT_FALSE(QFile::exists(path)) << path.toStdString();
    }
    QLibrary library(VORN_LIBRARY);
    ASSERT_TRUE(library.load()) << library.errorString().toStdString();
    for (const QString& path : carried) {
        EXPECT_TRUE(QFile::exists(path)) << path.toStdString();
    }
    {
        QTranslator english;
        ASSERT_TRUE(english.load(":/tr/vorn-en.qm"));
        EXPECT_EQ(english.translate("Vorn::GraphEditorDrop", "Ajouter vos données"), "Add your data");
        EXPECT_EQ(english.translate("GraphCtrl", "Échantillon %1"), "Sample %1");
        EXPECT_EQ(english.translate("ObjectSelectorEditor", "Cocher les éléments sélectionés"),
                  "Check selected items");
        EXPECT_TRUE(english.translate("VornEditor", "Échantillon %1").isEmpty());
        QTranslator spanish;
        spanish.load(":/tr/vorn-es.qm");
        EXPECT_TRUE(spanish.isEmpty());
    }
    ASSERT_TRUE(library.unload());
#if !defined(VORN_INSTRUMENTED) // instrumented, the host's libraries bind to it and keep it loaded
    for (const QString& path : carried) {
        EXPECT_FALSE(QFile::exists(path)) << path.toStdString();
    }
#endif
}

TEST(Plugin, exports_what_the_host_binds_to_and_hides_the_rest) {
    const QString symbols = exportedSymbols();
    const QString controller = "Vorn::SourceRockQAQC::SourceRockQAQCCtrl";
    for (const char* const needed :
         {"::SourceRockQAQCCtrl()", "::~SourceRockQAQCCtrl()", "::staticMetaObject", "::metaObject() const",
          "::qt_metacast(", "::qt_metacall(", "::qt_static_metacall(", "::tr(", "::trUtf8(", "::update()",
          "::display(", "::getColor(", "::close(bool)", "::exportMachineLearning()", "::slotAnalysisAdded(",
          "::showDataEditor()"}) {
        EXPECT_TRUE(symbols.contains(controller + needed)) << needed;
    }
    EXPECT_TRUE(symbols.contains("vtable for " + controller));
    EXPECT_TRUE(symbols.contains("Vorn::SourceRockQAQC::SrQaqcDataModel::data("));
    const QRegularExpression hidden(
        " [A-Z] (algo::|Vorn::SourceRockQAQC::SourceRockQAQC(Editor|Viewer|ViewModel)::)");
    const QStringList lines = symbols.split('\n').filter(hidden);
    EXPECT_TRUE(lines.isEmpty()) << lines.join('\n').toStdString();
}

TEST(Plugin, exports_the_import_modules_but_not_their_editors_and_helpers) {
    const QString symbols = exportedSymbols();
    const QString needed =
        "VornCtrl::VornCtrl() VornCtrl::~VornCtrl() VornCtrl::staticMetaObject VornCtrl::metaObject() "
        "VornCtrl::qt_metacall( VornCtrl::qt_metacast( VornCtrl::qt_static_metacall( VornCtrl::tr( "
        "VornCtrl::trUtf8( VornCtrl::createEditor() VornCtrl::editor() VornCtrl::model() "
        "VornCtrl::importFiles() VornCtrl::saveDatasets( VornCtrl::updateFileStatus( "
        "CustomImportCtrl::CustomImportCtrl() CustomImportCtrl::tr( CustomImportCtrl::trUtf8( "
        "CustomImportCtrl::getNoneEIC() GasDataCtrl::GasDataCtrl() GasDataCtrl::~GasDataCtrl() "
        "SourceRockCtrl::SourceRockCtrl() SourceRockCtrl::tr( SourceRockCtrl::trUtf8( "
        "SourceRockCtrl::saveAnalysis( SourceRockCtrl::importR00(";
    for (const QString& name : needed.split(' ')) {
        EXPECT_TRUE(symbols.contains(' ' + name)) << name.toStdString();
    }
    const QRegularExpression hidden(
        " [A-Z] ((\\w+Editor|SampleWriter|DatasetNameDialogs)|(typeinfo (name )?for )?std)::");
    EXPECT_TRUE(symbols.split('\n').filter(hidden).isEmpty());
}
