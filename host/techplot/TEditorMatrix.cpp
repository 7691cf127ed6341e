#include "TEditorMatrix.h"

#include "TEditorRegistry.h"
#include "TExportCommand.h"
#include "TMatrixBar.h"
#include "TViewerColumn.h"
#include "VKViewer2D.h"
#include <QAction>
#include <QEvent>
#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>

namespace TechPlot {

TEditorMatrix::TEditorMatrix(QWidget* parent)
    : TEditor(parent), m_bar(new TMatrixBar(this)), m_column(new TViewerColumn(this)) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(8, 0, 8, 8);
    rows->setSpacing(4);
    rows->addWidget(m_bar);
    rows->addWidget(m_column, 1);
    connect(m_column, &TViewerColumn::countChanged, m_bar, &TMatrixBar::setCount);
    connect(m_bar->linkAction(), &QAction::toggled, this, &TEditorMatrix::setLinked);
    connect(m_bar->gridAction(), &QAction::toggled, this, &TEditorMatrix::setGridVisible);
    connect(m_bar->resetAction(), &QAction::triggered, this, &TEditorMatrix::resetAll);
    // Later than the click: while the dialog is open the editor may go, and with it the button that it hit.
    connect(
        m_bar->exportAction(), &QAction::triggered, this, [this] { save(plots(), QString()); },
        Qt::QueuedConnection);
    retranslate();
}

// The viewers go after the members that their last signals would reach.
TEditorMatrix::~TEditorMatrix() {
    for (VKViewer2D* viewer : qAsConst(m_joined))
        viewer->disconnect(this);
}

void TEditorMatrix::retranslate() {
    setWindowTitle(tr("Curves", "Courbes"));
}

void TEditorMatrix::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    TEditor::changeEvent(event);
}

void TEditorMatrix::insertRow(TViewer* viewer, int row) {
    if (viewer == nullptr || viewers().contains(viewer))
        return;
    TEditorRegistry::returnMe().adopt(this, viewer->serial());
    viewer->setNotes(&notes());
    m_column->insert(viewer, row);
}

void TEditorMatrix::extractViewer(TViewer* viewer) {
    if (!m_column->take(viewer))
        return;
    viewer->disconnect(this);
    viewer->setNotes(nullptr);
    viewer->setParent(this);
    const auto place = std::find(m_joined.begin(), m_joined.end(), viewer);
    if (place == m_joined.end())
        return;
    (*place)->setCommonSpan({});
    m_joined.erase(place);
}

const QVector<TViewer*>& TEditorMatrix::viewers() const {
    return m_column->viewers();
}

void TEditorMatrix::viewerAdded(TViewer* viewer) {
    auto* joining = dynamic_cast<VKViewer2D*>(viewer);
    if (joining == nullptr || !viewers().contains(viewer) || m_joined.contains(joining))
        return;
    m_joined.append(joining);
    connect(joining, &QObject::destroyed, this, [this, joining] { m_joined.removeAll(joining); });
    connect(joining, &TViewer::exportRequested, this, [this, joining] { save({joining}, joining->name()); });
    connect(joining, &VKViewer2D::timeShown, this,
            [this, joining](double from, double to) { relayTime(joining, from, to); });
    connect(joining, &VKViewer2D::timeReset, this, [this] {
        if (m_bar->linkAction()->isChecked())
            forEachJoined([](VKViewer2D* each) { each->followReset(); });
    });
    joining->setGridVisible(m_bar->gridAction()->isChecked());
    if (m_bar->linkAction()->isChecked())
        widenSpan(joining);
}

template <class Action>
void TEditorMatrix::forEachJoined(Action action) {
    for (VKViewer2D* viewer : qAsConst(m_joined))
        action(viewer);
}

// The time axes that are linked share one home range, that holds the points of all of them.
void TEditorMatrix::widenSpan(VKViewer2D* viewer) {
    const auto before = m_span;
    const auto span = viewer->timeSpan();
    if (span) {
        m_span =
            m_span ? qMakePair(qMin(m_span->first, span->first), qMax(m_span->second, span->second)) : *span;
    }
    if (m_span == before) {
        viewer->setCommonSpan(m_span);
        return;
    }
    forEachJoined([this](VKViewer2D* each) { each->setCommonSpan(m_span); });
}

void TEditorMatrix::setLinked(bool linked) {
    m_span.reset();
    if (!linked) {
        forEachJoined([](VKViewer2D* each) { each->setCommonSpan({}); });
        return;
    }
    const auto* leading = dynamic_cast<const VKViewer2D*>(m_column->firstInSight());
    const bool zoomed = leading != nullptr && !leading->range().isHome();
    forEachJoined([this](VKViewer2D* each) { widenSpan(each); });
    if (zoomed) {
        relayTime(leading, leading->range().shown().left(), leading->range().shown().right());
    } else {
        resetAll();
    }
}

void TEditorMatrix::setGridVisible(bool visible) {
    forEachJoined([visible](VKViewer2D* each) { each->setGridVisible(visible); });
}

void TEditorMatrix::resetAll() {
    forEachJoined([](VKViewer2D* each) { each->followReset(); });
}

void TEditorMatrix::relayTime(const VKViewer2D* source, double from, double to) {
    if (!m_bar->linkAction()->isChecked())
        return;
    forEachJoined([=](VKViewer2D* each) {
        if (each != source)
            each->followTime(from, to);
    });
}

void TEditorMatrix::adjustViewers() {
    m_column->arrange();
}

void TEditorMatrix::save(const QVector<const VKViewer2D*>& viewers, const QString& name) {
    QStringList names;
    for (const VKViewer2D* viewer : viewers)
        names.append(viewer->name());
    const QPointer<TEditorMatrix> self(this);
    const QString path = TExportCommand::run(viewers, name, this);
    if (!path.isNull() && self != nullptr)
        emit exported(path, names);
}

QVector<const VKViewer2D*> TEditorMatrix::plots() const {
    QVector<const VKViewer2D*> plots;
    for (const TViewer* viewer : viewers()) {
        if (const auto* plot = dynamic_cast<const VKViewer2D*>(viewer))
            plots.append(plot);
    }
    return plots;
}

} // namespace TechPlot
