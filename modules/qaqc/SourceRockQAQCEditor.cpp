#include "SourceRockQAQCEditor.h"

#include "SliderScientific.h"
#include "SourceRockQAQCCtrl.h"
#include "VKListViewSignal.h"
#include "VKObject2Decoder.h"
#include "VKObject2Signal.h"
#include "VKRibbonGroupExpandable.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <string>
#include <vector>

namespace Vorn::SourceRockQAQC {

namespace {

constexpr int noValue = -9999;
constexpr int helpIdentifier = 124;
constexpr int moduleLabelWidth = 480;

/// One row of the legend: a swatch and its word.
QHBoxLayout* legendRow(QWidget* swatchParent, const QString& styleSheet, const QString& word) {
    auto* const swatch = new QLabel("", swatchParent);
    swatch->setStyleSheet(styleSheet);
    swatch->setMinimumWidth(50);
    auto* const row = new QHBoxLayout();
    row->addWidget(swatch);
    row->addWidget(new QLabel(word));
    return row;
}

QGroupBox* colourLegend() {
    auto* const box = new QGroupBox("Color legend");
    auto* const rows = new QVBoxLayout(box);
    rows->addLayout(legendRow(box, "QLabel { background-color : green; color : black; }", "good"));
    rows->addLayout(legendRow(nullptr, "QLabel { background-color : orange; color : orange; }", "double"));
    rows->addLayout(legendRow(nullptr, "QLabel { background-color : red; color : red; }", "flat"));
    return box;
}

void addRow(QVBoxLayout* column, QWidget* widget) {
    auto* const row = new QHBoxLayout();
    row->addWidget(widget);
    row->addStretch(1);
    column->addLayout(row);
}

template <class DragEvent>
void acceptWhatCanBeDecoded(DragEvent* event) {
    event->setAccepted(VKObject2Decoder::canDecode(event->mimeData()));
}

} // namespace

SourceRockQAQCEditor::SourceRockQAQCEditor(SourceRockQAQCCtrl* ctrl)
    : VKRibbonModuleBar("Source Rock QAQC"), m_settings(std::make_shared<SourceRockQAQCSettings>()),
      m_ctrl(ctrl) {
    buildRibbon(ctrl);
    buildContent();
}

SourceRockQAQCEditor::~SourceRockQAQCEditor() = default;

void SourceRockQAQCEditor::buildRibbon(TModuleCtrl* ctrl) {
    const QString title = "Source rock ";
    setTitle(title);
    createDescriptionGroup(noValue, true);
    createActionGroup(ctrl->getActionList());
    registerObserver(m_ctrl);
    m_group = new VKRibbonGroupExpandable(title, this);
    mainLayout()->addWidget(m_group);
    m_group->setPinState(true);
    m_group->layout()->setMargin(0);
    m_group->canBeExpanded(true);
    m_group->addWidget(createModuleLabel(title, moduleLabelWidth));
    mainLayout()->insertWidget(1, m_group, 0, {});
    m_pixmap = QPixmap(":/Ressources/png/modules/vorn_2015/Vorn_SourceRock_QAQC.png");
    setModuleDescription(m_pixmap, tr("Import data", "Import data"));
    addGenericActions(true, false);
    m_ctrl->setActionEnabled(ModuleObserver::dataEditorAction, true);
    actionGroup()->setTitle(tr("Actions", "Actions"));
}

void SourceRockQAQCEditor::buildContent() {
    auto* const root = new QGroupBox(this);
    auto* const columns = new QHBoxLayout(root);
    auto* const left = new QVBoxLayout();
    auto* const right = new QVBoxLayout();
    columns->addLayout(left);
    columns->addLayout(right);
    buildList(left);
    buildSliders(right);

    connect(m_signalList, &VKTreeWidget::dropCalled, this, &SourceRockQAQCEditor::analysisDropEvent);
    connect(m_signalList, &VKTreeWidget::dragEnterCalled, this, &SourceRockQAQCEditor::processDragEnter);
    connect(m_signalList, &VKTreeWidget::dragMoveCalled, this, &SourceRockQAQCEditor::processDragMove);
    // Twice, as users of the plot area know it: every change of the selection rebuilds it two times.
    connect(m_signalList, &QTreeWidget::itemSelectionChanged, this,
            &SourceRockQAQCEditor::processItemsSelected);
    connect(m_signalList, &QTreeWidget::itemSelectionChanged, this,
            &SourceRockQAQCEditor::processItemsSelected);
    for (SliderScientific* const slider : {m_heightSlider, m_sensitivitySlider, m_coelutionSlider}) {
        connect(slider, &SliderScientific::valueChanged, this, &SourceRockQAQCEditor::updateData);
    }
    m_group->setContent(root);
}

void SourceRockQAQCEditor::buildList(QVBoxLayout* left) {
    m_signalList = new VKListViewSignal(this, true);
    m_signalList->setHeaderLabel(tr("Signals to process", "Signaux de travail"));
    m_signalList->setRootIsDecorated(true);
    m_signalList->setUseKeyPress(false);
    m_signalList->setAutoMode(false);
    m_signalList->sortByColumn(1, Qt::AscendingOrder);
    left->addWidget(m_signalList);
    left->addSpacing(20);
    addRow(left, colourLegend());
    left->addStretch(1);
}

void SourceRockQAQCEditor::buildSliders(QVBoxLayout* right) {
    m_sensitivitySlider = new SliderScientific(
        this, tr("Sensitivity:", "Sensibilité :"), m_settings->sensitivity, 0.01, 0.8,
        tr("Higher value -> more peaks detected", "Valeur plus élevée -> plus de pics détectés"));
    m_coelutionSlider =
        new SliderScientific(this, tr("Coelution", "Coélution"), m_settings->coelution, 0.2, 2.0,
                             tr("Higher value -> more coeluted peaks removed",
                                "Valeur plus élevée -> plus de pics coélués retirés"));
    m_heightSlider = new SliderScientific(
        this, tr("Height criteria:", "Critère de hauteur :"), m_settings->heightCriteria, 0.0, 5.0,
        tr("higher -> bigger value of peak's height are required to be qualified as good",
           "Plus élevé -> Des valeurs plus élevées de hauteur de pic sont nécessaires pour qu'un pic soit "
           "valide"));

    auto* const filtering = new QGroupBox(tr("Peak filtering", "Filtrage de pic"));
    auto* const filters = new QVBoxLayout(filtering);
    addRow(filters, m_sensitivitySlider);
    filters->addSpacing(10);
    addRow(filters, m_coelutionSlider);
    filters->addStretch(1);
    right->addWidget(filtering);

    auto* const quality = new QGroupBox(tr("Peaks quality", "Qualité des pics"));
    auto* const criteria = new QVBoxLayout(quality);
    addRow(criteria, m_heightSlider);
    criteria->addStretch(1);
    right->addWidget(quality);
}

void SourceRockQAQCEditor::closeRequested() {
    VKRibbonBar::closeRequested();
    m_ctrl->close(true);
}

int SourceRockQAQCEditor::getIdForHelp() const {
    return helpIdentifier;
}

void SourceRockQAQCEditor::addAnalysis(const VKObject2Analysis* analysis) {
    if (analysis == nullptr) {
        return;
    }
    m_signalList->addSignal(analysis);
    ++m_signalCount;
    emit signalAnalysisAdded(analysis);
}

void SourceRockQAQCEditor::setRootColor(int state) {
    QTreeWidgetItem* const root = m_signalList->invisibleRootItem();
    switch (state) {
    case 0:
        root->setBackground(0, Qt::red);
        break;
    case 1:
        root->setBackground(0, Qt::green);
        break;
    case 2:
        root->setBackground(0, Qt::yellow);
        break;
    default:
        break;
    }
}

void SourceRockQAQCEditor::processExport() {
    m_ctrl->exportMachineLearning();
}

void SourceRockQAQCEditor::analysisDropEvent(QDropEvent* event) {
    if (event == nullptr) {
        return;
    }
    for (const VKObject2* const object : VKObject2Decoder::decodeObject(event->mimeData())) {
        const auto* const analysis = dynamic_cast<const VKObject2Analysis*>(object);
        if (object->type() == VKObjectType::Signal) {
            addAnalysis(analysis);
        } else if (object->type() == VKObjectType::Analysis) {
            addAnalysis(analysis->TIC());
        }
    }
    updateData();
}

void SourceRockQAQCEditor::processDragEnter(QDragEnterEvent* event) {
    acceptWhatCanBeDecoded(event);
}

void SourceRockQAQCEditor::processDragMove(QDragMoveEvent* event) {
    acceptWhatCanBeDecoded(event);
}

void SourceRockQAQCEditor::updateData() {
    m_settings->coelution = m_coelutionSlider->value();
    // The complement: a higher slider means a narrower smoothing mask, and so more peaks.
    m_settings->sensitivity = 1.0 - m_sensitivitySlider->value();
    m_settings->heightCriteria = m_heightSlider->value();
    m_ctrl->update();
    QTreeWidgetItem* const root = m_signalList->invisibleRootItem();
    for (int i = 0; i < root->childCount(); ++i) {
        QTreeWidgetItem* const item = root->child(i);
        item->setBackground(0, m_ctrl->getColor(item->text(0).toStdString()));
    }
}

void SourceRockQAQCEditor::processItemsSelected() {
    std::vector<std::string> names;
    QTreeWidgetItem* const root = m_signalList->invisibleRootItem();
    for (int i = 0; i < root->childCount(); ++i) {
        if (root->child(i)->isSelected()) {
            names.push_back(root->child(i)->text(0).toStdString());
        }
    }
    m_ctrl->display(names);
}

} // namespace Vorn::SourceRockQAQC
