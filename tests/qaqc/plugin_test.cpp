#include <gtest/gtest.h>

#include <QFile>
#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>
#include <QTranslator>

namespace {

const QStringList carried{":/tr/vorn-es.qm", ":/tr/vorn-en.qm", ":/rcc/png/delete_generic.png"};

QStringList present() {
    QStringList found;
    std::copy_if(carried.begin(), carried.end(), std::back_inserter(found),
                 [](const QString& path) { return QFile::exists(path); });
    return found;
}

} // namespace

TEST(Plugin, its_resources_are_there_from_load_to_unload) {
    EXPECT_EQ(present(), QStringList());
    QLibrary library(VORN_LIBRARY);
    ASSERT_TRUE(library.load()) << library.errorString().toStdString();
    EXPECT_EQ(present(), carried);
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
    EXPECT_EQ(present(), QStringList());
#endif
}

TEST(Plugin, exports_what_the_host_binds_to_and_hides_the_rest) {
    QProcess nm;
    nm.start("nm", {"-D", "-C", "--defined-only", VORN_LIBRARY});
    ASSERT_TRUE(nm.waitForFinished());
    const QString symbols = QString::fromUtf8(nm.readAllStandardOutput());
    const std::pair<QString, QString> classes[] = {
        {"Vorn::SourceRockQAQC::SourceRockQAQCCtrl",
         "SourceRockQAQCCtrl() ~SourceRockQAQCCtrl() staticMetaObject metaObject() qt_metacast( qt_metacall( "
         "qt_static_metacall( tr( trUtf8( update() display( getColor( close(bool) exportMachineLearning() "
         "slotAnalysisAdded( showDataEditor()"},
        {"Vorn::SourceRockQAQC::SrQaqcDataModel", "data("},
        {"VornCtrl", "VornCtrl() ~VornCtrl() staticMetaObject metaObject() qt_metacall( qt_metacast( "
                     "qt_static_metacall( tr( trUtf8( createEditor() editor() model() importFiles() "
                     "saveDatasets( updateFileStatus("},
        {"CustomImportCtrl", "CustomImportCtrl() tr( trUtf8( getNoneEIC()"},
        {"GasDataCtrl", "GasDataCtrl() ~GasDataCtrl()"},
        {"SourceRockCtrl", "SourceRockCtrl() tr( trUtf8( saveAnalysis( importR00("}};
    for (const auto& [name, members] : classes) {
        EXPECT_TRUE(symbols.contains("vtable for " + name + '\n')) << name.toStdString();
        for (const QString& member : members.split(' ')) {
            EXPECT_TRUE(symbols.contains(' ' + name + "::" + member)) << (name + member).toStdString();
        }
    }
    const QRegularExpression hidden(
        " [A-Z] (algo::|Vorn::SourceRockQAQC::SourceRockQAQC(Editor|Viewer|ViewModel)::|"
        "(\\w+Editor|SampleWriter|DatasetNameDialogs)::|(typeinfo (name )?for )?std::)");
    const QStringList lines = symbols.split('\n').filter(hidden);
    EXPECT_TRUE(lines.isEmpty()) << lines.join('\n').toStdString();
}
