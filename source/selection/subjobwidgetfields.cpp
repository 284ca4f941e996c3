#include "subjobwidget.h"

#include "checkedheaderview.h"
#include "filterintegerrangeproxymodel.h"
#include "selectableresourcecolumns_p.h"
#include "selectableresourceitemdelegate.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include <limits>

namespace JEDVEPLUGIN {

namespace {

enum Row : int {
    ROW_NAME,
    ROW_RECORD_LOCATION,
    ROW_TYPE,
    ROW_BASE_RESOURCE,
    ROW_STARTUP_MODE,
    ROW_PRE_CLASSIFIER,
    ROW_DETECTOR_GROUP,
    ROW_DETECTOR,
    ROW_DETECTOR_TYPE,
    ROW_PRODUCTION,
    ROW_AUTO_SEPARATION,
    ROW_FILTER_SEPARATION,
    ROW_ONLINE_RECOMBINATION,
    ROW_DETECTOR_RECORD_LOCATION,
    ROW_DSC_CHANNELS,
    ROW_DETECTOR_BASE_RESOURCE,
    ROW_MIN_COVERAGE,
    ROW_AUTO_RECORDING,
    ROWS,
};

struct RowTexts
{
    const char* label;
    const char* labelName;
    const char* fieldName;
    const char* toolTip; // null: none
};

// In the order of the rows. The names of the objects are part of the interface, both ways in which they begin.
const RowTexts ROW_TEXTS[ROWS] = {
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Tuner Name"), "subJobWidget_NameLabel",
     "subJobWidget_Name", nullptr},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Record Location"), "subJobWidget_RecordLocationLabel",
     "subJobWidget_RecordLocation", QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "select Record Location")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Type"), "subJobWidget_TypeLabel", "subJobWidget_Type",
     nullptr},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Base Resource"), "subJobWidget_BaseResourceLabel",
     "subJobWidget_BaseResource", nullptr},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Startup Mode"), "subJobWidget_StartupModeLabel",
     "subJobWidget_StartupModes", QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Startup Mode")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Preclassifier"), "subJobWidget_PreClassifierLabel",
     "subJobWidget_PreClassifier", QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "enable Preclassifier")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Detector"), "", "", nullptr},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Detector"), "subjobWidget_DetectorLabel",
     "subjobWidget_Detector", QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "enable/disable Detector")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Detector Type"), "subjobWidget_DetectorTypeLabel",
     "subjobWidget_DetectorType", QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "select Detector Type")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Production"), "subjobWidget_ProductionLabel",
     "subjobWidget_Production", QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "enable/disable Production")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Auto Separation"), "subjobWidget_AutoSeparationLabel",
     "subjobWidget_AutoSeparation",
     QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "enable/disable Auto Separation")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Filter Separation"),
     "subjobWidget_FilterSeparationLabel", "subjobWidget_FilterSeparation",
     QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "enable/disable Filter Separation")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Online Recombination"),
     "subjobWidget_OnlineRecombinationLabel", "subjobWidget_OnlineRecombination",
     QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "enable/disable Online Recombination")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Record Location"),
     "subJobWidget_DetectorRecordLocationLabel", "subJobWidget_DetectorRecordLocation",
     QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "select Record Location")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "DSC Channels"), "subjobWidget_DSCChannelsLabel",
     "subjobWidget_DSCChannels",
     QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "set number of DSC Channels")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Base Resource"),
     "subJobWidget_DetectorBaseResourceLabel", "subJobWidget_DetectorBaseResource",
     QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "select Base Resource")},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Min Coverage"), "subjobWidget_MinCoverage",
     "subjobWidget_MinCoverage", nullptr},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Auto Recording"), "subjobWidget_AutoRecordingLabel",
     "subjobWidget_AutoRecording",
     QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "enable/disable Auto Recording")},
};

const int COLUMN_SPACING = 10;
const int MAX_DSC_CHANNELS = 128;
const int MAX_COVERAGE = 100; // percent

QString translated(const char* text)
{
    return SubJobWidget::tr(text);
}

/// Fills the grid: a label and a field in each row.
class FieldGrid
{
public:
    FieldGrid(QGridLayout* grid, QHash<const QWidget*, QLabel*>& labels)
        : m_grid(grid)
        , m_labels(labels)
    {
    }

    template <typename Field>
    Field* add(Row row)
    {
        const RowTexts& texts = ROW_TEXTS[row];
        auto* label = new QLabel(translated(texts.label), m_grid->parentWidget());
        auto* field = new Field(m_grid->parentWidget());
        label->setObjectName(texts.labelName);
        label->setBuddy(field);
        field->setObjectName(texts.fieldName);
        field->setAccessibleName(label->text());
        if (texts.toolTip)
            field->setToolTip(translated(texts.toolTip));
        m_grid->addWidget(label, row, 0);
        m_grid->addWidget(field, row, 1);
        m_labels.insert(field, label);
        return field;
    }

    QLineEdit* addReadOnly(Row row)
    {
        auto* field = add<QLineEdit>(row);
        field->setEnabled(false);
        return field;
    }

    QComboBox* addChoice(Row row)
    {
        auto* field = add<QComboBox>(row);
        // Texts come with each resource, also after the first show.
        field->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        return field;
    }

    QSpinBox* addNumber(Row row, int maximum)
    {
        auto* field = add<QSpinBox>(row);
        field->setRange(0, maximum);
        return field;
    }

private:
    QGridLayout* m_grid;
    QHash<const QWidget*, QLabel*>& m_labels;
};

} // namespace

void SubJobWidget::createFields(QGridLayout* grid)
{
    FieldGrid fields(grid, m_labels);
    m_name = fields.addReadOnly(ROW_NAME);
    m_recordLocation = fields.addChoice(ROW_RECORD_LOCATION);
    m_type = fields.addReadOnly(ROW_TYPE);
    m_baseResource = fields.addReadOnly(ROW_BASE_RESOURCE);
    m_startupModes = fields.addChoice(ROW_STARTUP_MODE);
    m_preClassifier = fields.add<QCheckBox>(ROW_PRE_CLASSIFIER);
    auto* group = new QGroupBox(translated(ROW_TEXTS[ROW_DETECTOR_GROUP].label), this);
    group->setFlat(true); // A heading: the fields below stay in this grid, in line with those above.
    grid->addWidget(group, ROW_DETECTOR_GROUP, 0, 1, 2);
    m_detector = fields.add<QCheckBox>(ROW_DETECTOR);
    m_detectorType = fields.addChoice(ROW_DETECTOR_TYPE);
    m_production = fields.add<QCheckBox>(ROW_PRODUCTION);
    m_autoSeparation = fields.add<QCheckBox>(ROW_AUTO_SEPARATION);
    m_filterSeparation = fields.add<QCheckBox>(ROW_FILTER_SEPARATION);
    m_onlineRecombination = fields.add<QCheckBox>(ROW_ONLINE_RECOMBINATION);
    m_detectorRecordLocation = fields.addChoice(ROW_DETECTOR_RECORD_LOCATION);
    m_dscChannels = fields.addNumber(ROW_DSC_CHANNELS, MAX_DSC_CHANNELS);
    m_detectorBaseResource = fields.addChoice(ROW_DETECTOR_BASE_RESOURCE);
    m_minCoverage = fields.addNumber(ROW_MIN_COVERAGE, MAX_COVERAGE);
    m_minCoverage->setSuffix("%");
    m_autoRecording = fields.add<QCheckBox>(ROW_AUTO_RECORDING);
    grid->setRowStretch(ROWS, 1);
}

void SubJobWidget::createSCPList(QVBoxLayout* layout)
{
    auto* label = new QLabel(tr("Autonomous SCPs"), this);
    label->setObjectName("subjobWidget_SCPListLabel");
    m_scpView = new QTableView(this);
    m_scpView->setObjectName("subjobWidget_DetectorSCPList");
    m_scpView->setToolTip(tr("select autonomous SCPs"));
    m_scpView->setAccessibleName(label->text());
    m_scpView->setContextMenuPolicy(Qt::CustomContextMenu);
    m_scpView->setCornerButtonEnabled(false);
    m_scpView->setSizeAdjustPolicy(
        QAbstractScrollArea::AdjustToContents); // Shows all columns if there is room.
    label->setBuddy(m_scpView);
    m_labels.insert(m_scpView, label);

    auto* header = new CheckedHeaderView(Qt::Vertical, m_scpView);
    header->setObjectName("subjobWidget_DetectorSCPListVHeader");
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_scpView->setVerticalHeader(header);
    m_scpView->setItemDelegate(new SelectableResourceItemDelegate(m_scpView));

    m_scpProxy = new FilterIntegerRangeProxyModel(this);
    m_scpProxy->setFilterKeyColumn(COLUMN_MAX_COUNT);
    m_scpProxy->setRange(1, std::numeric_limits<int>::max());
    m_scpProxy->setDynamicSortFilter(true);
    // Before the model is set: afterwards it would sort at once, in descending order.
    m_scpView->setSortingEnabled(true);
    m_scpView->setModel(m_scpProxy);

    layout->addWidget(label);
    layout->addWidget(m_scpView);
}

void SubJobWidget::layOut()
{
    auto* columns = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    left->setObjectName("DeviceSetting_WLayout");
    columns->addLayout(left);
    columns->addSpacing(COLUMN_SPACING);
    auto* right = new QVBoxLayout;
    columns->addLayout(right, 1);

    auto* grid = new QGridLayout;
    grid->setObjectName("subJobWidget_gridLayout");
    left->addLayout(grid);
    left->addStretch(1);
    createFields(grid);
    createSCPList(right);
}

} // namespace JEDVEPLUGIN
