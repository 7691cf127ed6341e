#include "MainWindow.h"

#include "LogPanel.h"
#include "ProjectTree.h"
#include "TBarCaption.h"
#include "VKRibbon.h"
#include "Workspace.h"

#include <QCloseEvent>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace {

constexpr int treeWidth = 320;
constexpr int logHeight = 120;
constexpr int smallestTree = 200;
constexpr int smallestLog = 112;
constexpr int largestExtent = 16'000; // more than screens have, less than a picture of the window may

QVariantList sizesOf(const QSplitter& splitter) {
    QVariantList sizes;
    for (const int size : splitter.sizes()) {
        sizes.append(size);
    }
    return sizes;
}

/// Not by the splitter's own state, which it believes whatever it says: a damaged one spreads the window
/// beyond what can be painted.
void restoreSizes(QSplitter& splitter, const QVariant& stored) {
    QList<int> sizes;
    for (const QVariant& size : stored.toList()) {
        sizes.append(qBound(0, size.toInt(), largestExtent));
    }
    if (sizes.size() == splitter.count()) {
        splitter.setSizes(sizes);
    }
}

} // namespace

MainWindow::MainWindow(MessageLogModel& log)
    : m_ribbon(new VKRibbon), m_tree(new ProjectTree), m_workspace(new Workspace), m_log(new LogPanel(log)),
      m_columns(new QSplitter(Qt::Horizontal)), m_rows(new QSplitter(Qt::Vertical)),
      m_status(new TBarCaption(Qt::ElideMiddle, this, Qt::AlignLeft)) {
    m_columns->setObjectName(QStringLiteral("columns"));
    m_rows->setObjectName(QStringLiteral("rows"));
    m_tree->setMinimumWidth(smallestTree);
    m_log->setMinimumHeight(smallestLog);
    m_rows->addWidget(m_workspace);
    m_rows->addWidget(m_log);
    m_rows->setStretchFactor(0, 1);
    m_columns->addWidget(m_tree);
    m_columns->addWidget(m_rows);
    m_columns->setStretchFactor(1, 1);
    for (QSplitter* const splitter : {m_columns, m_rows}) {
        splitter->setChildrenCollapsible(false);
    }

    auto* const content = new QWidget;
    auto* const rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_ribbon);
    rows->addWidget(m_columns, 1);
    setCentralWidget(content);
    statusBar()->addWidget(m_status, 1);
    restore();
}

MainWindow::~MainWindow() = default;

void MainWindow::showStatus(const QString& text) {
    m_status->setText(text);
}

void MainWindow::restore() {
    const QSettings settings;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    resize(QSize(1280, 800).boundedTo(screen.size()));
    m_columns->setSizes({treeWidth, width() - treeWidth});
    m_rows->setSizes({height() - logHeight, logHeight});
    restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray());
    resize(size().boundedTo({largestExtent, largestExtent}));
    restoreSizes(*m_columns, settings.value(QStringLiteral("window/columns")));
    restoreSizes(*m_rows, settings.value(QStringLiteral("window/rows")));
}

void MainWindow::changeEvent(QEvent* event) {
    // Another window may have written to the project while this one was behind it.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        m_tree->refresh();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (m_mayClose && !m_mayClose()) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/columns"), sizesOf(*m_columns));
    settings.setValue(QStringLiteral("window/rows"), sizesOf(*m_rows));
    QMainWindow::closeEvent(event);
}
