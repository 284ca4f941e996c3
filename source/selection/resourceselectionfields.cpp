#include "resourceselectiondialog.h"

#include <jobxml/job.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace JEDVEPLUGIN {

namespace {

const int USUAL_DETECTOR_RECORD_LOCATION = 1; // entry of the box
const int MAX_CHANNELS = 128;
const int MAX_COVERAGE = 100;    // percent
const int INITIAL_COVERAGE = 50; // percent

/// Fills a grid with rows of label and field.
class RowBuilder
{
public:
    RowBuilder(QGridLayout* grid, QHash<const QWidget*, QLabel*>* labels)
        : m_grid(grid)
        , m_labels(labels)
    {
    }

    /// \param labelSuffix  what the label's name has behind the field's; some share theirs
    template <typename Field>
    Field* add(const QString& text, const char* name, const char* labelSuffix = "Label")
    {
        auto* field = new Field;
        field->setObjectName(QLatin1String(name));
        field->setAccessibleName(text);
        auto* label = new QLabel(text);
        label->setObjectName(QLatin1String(name) + QLatin1String(labelSuffix));
        label->setBuddy(field);
        const int row = m_labels->size();
        m_grid->addWidget(label, row, 0);
        m_grid->addWidget(field, row, 1);
        m_labels->insert(field, label);
        return field;
    }

private:
    QGridLayout* m_grid;
    QHash<const QWidget*, QLabel*>* m_labels;
};

const char* const SAME_NAME = "";

} // namespace

void ResourceSelectionDialog::createLayout(bool preClassifierOffered)
{
    auto* layout = new QVBoxLayout(this);
    layout->setObjectName("ResourceSelection_Layout");
    auto* grid = new QGridLayout;
    grid->setObjectName("ResourceSelection_GridLayout");
    layout->addLayout(grid);
    createTunerFields(grid, preClassifierOffered);
    if (m_detectorOffered)
        createDetectorFields(grid);
    layout->addStretch(1); // the room of hidden rows, so that the others stay together

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    m_okButton = new QPushButton(tr("Select"));
    m_okButton->setObjectName("ResourceSelection_OkButton");
    m_okButton->setDefault(true);
    buttons->addWidget(m_okButton);
    m_cancelButton = new QPushButton(tr("Cancel"));
    m_cancelButton->setObjectName("ResourceSelection_CancelButton");
    buttons->addWidget(m_cancelButton);
    layout->addLayout(buttons);
}

void ResourceSelectionDialog::createTunerFields(QGridLayout* grid, bool preClassifierOffered)
{
    RowBuilder rows(grid, &m_labels);
    m_tunerTypeBox = rows.add<QComboBox>(tr("Type"), "ResourceSelection_TunerType");
    m_baseResourceBox = rows.add<QComboBox>(tr("Base Resource"), "ResourceSelection_BaseResource");
    m_tunerNameEdit = rows.add<QLineEdit>(tr("Tuner Name"), "ResourceSelection_TunerName");
    m_tunerNameEdit->setEnabled(false);
    m_recordLocationBox = rows.add<QComboBox>(tr("Record Location"), "ResourceSelection_RecordLocation");
    m_startupModeList = rows.add<QListWidget>(tr("Startup Modes"), "ResourceSelection_StartupModes");
    m_startupModeList->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_labels.value(m_startupModeList)->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    if (!preClassifierOffered)
        return;
    m_preClassifierBox = rows.add<QCheckBox>(tr("Preclassifier"), "ResourceSelection_PreClassifier");
    m_preClassifierBox->setToolTip(tr("enable Preclassifier"));
    m_preClassifierBox->setChecked(m_preClassifier);
}

void ResourceSelectionDialog::createDetectorFields(QGridLayout* grid)
{
    RowBuilder rows(grid, &m_labels);
    m_detectorBox = rows.add<QCheckBox>(tr("Detector"), "ResourceSelection_Detector");
    m_detectorBox->setChecked(m_detectorPreset);
    m_detectorTypeBox = rows.add<QComboBox>(tr("Detector Type"), "ResourceSelection_DetectorType");
    m_detectorTypeBox->addItems(JobXml::Detector::GetGUITypes());
    m_detectorTypeBox->setCurrentIndex(0);
    m_productionBox = rows.add<QCheckBox>(tr("Production"), "ResourceSelection_Production");
    m_autoSeparationBox =
        rows.add<QCheckBox>(tr("Auto Separation"), "ResourceSelection_AutoSeparation", SAME_NAME);
    m_filterSeparationBox =
        rows.add<QCheckBox>(tr("Filter Separation"), "ResourceSelection_FilterSeparation", SAME_NAME);
    m_onlineRecombinationBox =
        rows.add<QCheckBox>(tr("Online Recombination"), "ResourceSelection_OnlineRecombination", SAME_NAME);
    m_detectorRecordLocationBox =
        rows.add<QComboBox>(tr("Record Location"), "ResourceSelection_DetectorRecordLocation");
    m_detectorRecordLocationBox->setAccessibleName(tr("Record Location of the Detector"));
    m_detectorRecordLocationBox->addItems(JobXml::Detector::GetGUIRecordLocations());
    m_detectorRecordLocationBox->setCurrentIndex(USUAL_DETECTOR_RECORD_LOCATION);
    m_dscChannelsBox = rows.add<QSpinBox>(tr("DSC Channels"), "ResourceSelection_DSCChannels");
    m_dscChannelsBox->setRange(0, MAX_CHANNELS);
    m_detectorBaseResourceBox =
        rows.add<QComboBox>(tr("Base Resource"), "ResourceSelection_DetectorBaseResource");
    m_detectorBaseResourceBox->setAccessibleName(tr("Base Resource of the Detector"));
    m_minCoverageBox = rows.add<QSpinBox>(tr("Min Coverage"), "ResourceSelection_MinCoverage", SAME_NAME);
    m_minCoverageBox->setRange(0, MAX_COVERAGE);
    m_minCoverageBox->setValue(INITIAL_COVERAGE);
    m_minCoverageBox->setSuffix("%");
    m_autoRecordingBox =
        rows.add<QCheckBox>(tr("Auto Recording"), "ResourceSelection_AutoRecording", SAME_NAME);
}

} // namespace JEDVEPLUGIN
