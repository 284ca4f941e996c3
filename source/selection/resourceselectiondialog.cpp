#include "resourceselectiondialog.h"

#include "jedcommonhelper.h"
#include "resourcedescription.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

namespace JEDVEPLUGIN {

namespace {

// Positions among the job file's detector types.
const int DETECTOR_WITH_PRODUCTION = 1;
const int DETECTOR_WITH_SEPARATION = 2;

const JobXml::ResourceDescription::Type TUNER_WITH_CHANNELS = JobXml::ResourceDescription::Type(0);

const int DEFAULT_COVERAGE = 50; // percent

/// The entries instead of those that the box had, the first one current; nothing to choose disables it.
void refill(QComboBox* box, const QStringList& entries)
{
    box->clear();
    box->addItems(entries);
    box->setCurrentIndex(0);
    box->setEnabled(entries.size() > 1);
}

bool isChecked(const QCheckBox* box)
{
    return box && box->isChecked();
}

/// The name at the place that a text of the user interface has among its like; empty if it has none.
QString nameOf(const QString& text, const QStringList& texts, const QStringList& names)
{
    return names.value(texts.indexOf(text));
}

} // namespace

ResourceSelectionDialog::ResourceSelectionDialog(const QList<std::shared_ptr<ResourceDescription>>& resources,
                                                 bool detectorOffered, bool detectorPreset,
                                                 bool preClassifierOffered,
                                                 const QStringList& allowedStartupModes, QWidget* parent)
    : QDialog(parent)
    , m_detectorOffered(detectorOffered)
    , m_detectorPreset(detectorPreset)
    , m_allowedStartupModes(allowedStartupModes)
{
    setObjectName("ResourceSelectionDialog");
    setWindowTitle(tr("Resource Selection"));
    setModal(true);
    for (const std::shared_ptr<ResourceDescription>& resource : resources) {
        if (resource)
            m_descriptionsByType[resource->getType()][resource->getBaseResource()] = resource;
    }
    createLayout(preClassifierOffered);

    QStringList types = m_descriptionsByType.keys();
    JEDCommonHelper::sortResourceTypes(types);
    m_tunerTypeBox->addItems(types);
    m_tunerTypeBox->setCurrentIndex(0);
    tunerTypeChanged(m_tunerTypeBox->currentText());
    if (m_detectorOffered)
        detectorTypeChanged(m_detectorTypeBox->currentText());
    connectFields();
}

std::shared_ptr<ResourceDescription> ResourceSelectionDialog::getSelectedDescription()
{
    return m_selectedDescription;
}

QString ResourceSelectionDialog::getSelectedStartupMode() const
{
    return m_startupMode;
}

QString ResourceSelectionDialog::getSelectedRecordLocation() const
{
    return m_recordLocation;
}

bool ResourceSelectionDialog::isDetectorSelected() const
{
    return m_detectorSelected;
}

QString ResourceSelectionDialog::getDetectorType() const
{
    return m_detectorType;
}

bool ResourceSelectionDialog::isProductionSet() const
{
    return m_production;
}

int ResourceSelectionDialog::getDSCChannels() const
{
    return m_dscChannels;
}

unsigned int ResourceSelectionDialog::getMinCoverage() const
{
    return m_minCoverage;
}

bool ResourceSelectionDialog::isAutoSeparationSet() const
{
    return m_autoSeparation;
}

bool ResourceSelectionDialog::isFilterSeparationSet() const
{
    return m_filterSeparation;
}

bool ResourceSelectionDialog::isOnlineRecombinationSet() const
{
    return m_onlineRecombination;
}

bool ResourceSelectionDialog::isAutoRecordingSet() const
{
    return m_autoRecording;
}

QString ResourceSelectionDialog::getDetectorRecordLocation() const
{
    return m_detectorRecordLocation;
}

QString ResourceSelectionDialog::getDetectorBaseResource() const
{
    return m_detectorBaseResource;
}

bool ResourceSelectionDialog::isPreClassifierSelected() const
{
    return m_preClassifier;
}

void ResourceSelectionDialog::tunerTypeChanged(const QString& type)
{
    {
        const QSignalBlocker quiet(m_baseResourceBox);
        refill(m_baseResourceBox, m_descriptionsByType.value(type).keys());
        baseResourceChanged(m_baseResourceBox->currentText());
    }
    fillRecordLocations(type);
    if (!m_detectorOffered)
        return;
    const JobXml::ResourceDescription::Type tuner = JobXml::ResourceDescription::NameToType(type);
    const QStringList detectorTypes = JEDCommonHelper::getAvailableDetectorTypes(tuner);
    if (detectorTypes.isEmpty())
        withdrawDetector();
    else
        offerDetector(detectorTypes);
}

void ResourceSelectionDialog::baseResourceChanged(const QString& baseResource)
{
    m_selectedDescription = m_descriptionsByType.value(m_tunerTypeBox->currentText()).value(baseResource);
    setRowVisible(m_startupModeList, false);
    m_tunerNameEdit->setText("");
    m_startupModeList->clear();
    m_startupMode.clear();
    if (m_selectedDescription) {
        m_tunerNameEdit->setText(m_selectedDescription->getName());
        const QStringList modes = JEDCommonHelper::restrictedStartupModes(
            m_selectedDescription->getStartupModes(), m_allowedStartupModes);
        if (!modes.isEmpty()) {
            m_startupModeList->addItems(JEDCommonHelper::startupModesToGUI(modes));
            m_startupModeList->setCurrentRow(0);
            // Before the fields are connected nobody else tells which entry is current.
            startupModeChanged(m_startupModeList->currentItem()->text());
            setRowVisible(m_startupModeList, true);
        }
    }
    if (m_dscChannelsBox)
        dscChannelChanged(m_dscChannelsBox->value());
}

void ResourceSelectionDialog::startupModeChanged(const QString& text)
{
    m_startupMode = JEDCommonHelper::startupModeFromGUI(text);
}

void ResourceSelectionDialog::dialogFinished(int result)
{
    if (result == QDialog::Accepted)
        takeResults();
    else
        resetResults();
}

void ResourceSelectionDialog::detectorStateChanged(int state)
{
    setRowVisible(m_detectorTypeBox, state != Qt::Unchecked);
    detectorTypeChanged(m_detectorTypeBox->currentText());
}

void ResourceSelectionDialog::detectorTypeChanged(const QString& text)
{
    const int type = JobXml::Detector::GetGUITypes().indexOf(text);
    setChannelWording(type);

    const bool isTunerWithChannels =
        JobXml::ResourceDescription::NameToType(m_tunerTypeBox->currentText()) == TUNER_WITH_CHANNELS;
    const bool hasProduction = m_detectorBox->isChecked() && type == DETECTOR_WITH_PRODUCTION;
    const bool hasSeparation = m_detectorBox->isChecked() && type == DETECTOR_WITH_SEPARATION;
    const bool isRecombined = m_onlineRecombinationBox->isChecked();
    setRowVisible(m_productionBox, hasProduction);
    setRowVisible(m_dscChannelsBox,
                  isTunerWithChannels && (hasProduction || (hasSeparation && isRecombined)));
    for (QCheckBox* box : {m_autoSeparationBox, m_filterSeparationBox, m_onlineRecombinationBox})
        setRowVisible(box, hasSeparation);

    if (!hasProduction)
        m_productionBox->setChecked(false);
    productionStateChanged(m_productionBox->checkState());
    if (hasSeparation)
        setRowVisible(m_dscChannelsBox, isRecombined);
    dscChannelChanged(m_dscChannelsBox->value());
}

void ResourceSelectionDialog::productionStateChanged(int state)
{
    setRowVisible(m_detectorRecordLocationBox,
                  state != Qt::Unchecked && detectorTypePosition() == DETECTOR_WITH_PRODUCTION);
}

void ResourceSelectionDialog::dscChannelChanged(int channels)
{
    const QStringList connectable =
        m_selectedDescription ? m_selectedDescription->getConnectableResources() : QStringList();
    if (!checkComboBoxEqual(m_detectorBaseResourceBox, connectable)) {
        m_detectorBaseResourceBox->clear();
        if (!connectable.isEmpty())
            refill(m_detectorBaseResourceBox, connectable);
    }
    const bool isSeparating = detectorTypePosition() == DETECTOR_WITH_SEPARATION;
    const bool hasBaseResource = channels >= 1 && !connectable.isEmpty() && m_detectorBox->isChecked() &&
                                 (!isSeparating || m_onlineRecombinationBox->isChecked());
    setRowVisible(m_detectorBaseResourceBox, hasBaseResource);
    setRowVisible(m_minCoverageBox, hasBaseResource && isSeparating);
    setRowVisible(m_autoRecordingBox, hasBaseResource && isSeparating);
}

void ResourceSelectionDialog::onlineSeparationChanged(int state)
{
    setRowVisible(m_dscChannelsBox, state != Qt::Unchecked);
    dscChannelChanged(m_dscChannelsBox->value());
}

void ResourceSelectionDialog::connectFields()
{
    using This = ResourceSelectionDialog;
    // By name: the overload with the text is marked as outdated for the other way.
    const auto connectText = [this](QComboBox* box, const char* slot) {
        connect(box, SIGNAL(currentIndexChanged(QString)), this, slot);
    };
    if (m_detectorOffered) {
        connect(m_detectorBox, &QCheckBox::stateChanged, this, &This::detectorStateChanged);
        connectText(m_detectorTypeBox, SLOT(detectorTypeChanged(QString)));
        connect(m_productionBox, &QCheckBox::stateChanged, this, &This::productionStateChanged);
        connect(m_dscChannelsBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
                &This::dscChannelChanged);
        connect(m_onlineRecombinationBox, &QCheckBox::stateChanged, this, &This::onlineSeparationChanged);
    }
    connectText(m_tunerTypeBox, SLOT(tunerTypeChanged(QString)));
    connectText(m_baseResourceBox, SLOT(baseResourceChanged(QString)));
    connect(m_startupModeList, &QListWidget::currentTextChanged, this, &This::startupModeChanged);
    connect(m_okButton, &QPushButton::clicked, this, &This::accept);
    connect(m_cancelButton, &QPushButton::clicked, this, &This::reject);
    connect(this, &QDialog::finished, this, &This::dialogFinished);
}

void ResourceSelectionDialog::fillRecordLocations(const QString& type)
{
    const QStringList locations = JEDCommonHelper::getAvailableGUIRecordLocations(type);
    setRowVisible(m_recordLocationBox, !locations.isEmpty());
    if (locations.isEmpty()) {
        m_recordLocationBox->clear();
        return;
    }
    refill(m_recordLocationBox, locations);
    const int usual = locations.indexOf(JEDCommonHelper::getDefaultGUIRecordLocation(type));
    m_recordLocationBox->setCurrentIndex(qMax(usual, 0));
}

void ResourceSelectionDialog::offerDetector(const QStringList& types)
{
    {
        const QSignalBlocker quiet(m_detectorTypeBox);
        refill(m_detectorTypeBox, types);
        detectorTypeChanged(m_detectorTypeBox->currentText());
    }
    m_detectorBox->setChecked(m_detectorPreset);
    setRowVisible(m_detectorBox, true);
}

void ResourceSelectionDialog::withdrawDetector()
{
    m_detectorPreset = m_detectorBox->isChecked();
    setRowVisible(m_detectorTypeBox, false);
    m_detectorBox->setChecked(false);
    setRowVisible(m_detectorBox, false);
    setRowVisible(m_detectorBaseResourceBox, false);
    setRowVisible(m_detectorRecordLocationBox, false);
    m_detectorBaseResourceBox->clear();
}

void ResourceSelectionDialog::setRowVisible(QWidget* field, bool visible)
{
    field->setVisible(visible);
    m_labels.value(field)->setVisible(visible);
}

void ResourceSelectionDialog::setChannelWording(int detectorType)
{
    const bool isSeparating = detectorType == DETECTOR_WITH_SEPARATION;
    const QString label = isSeparating ? tr("ST Channels") : tr("DSC Channels");
    m_labels.value(m_dscChannelsBox)->setText(label);
    m_dscChannelsBox->setAccessibleName(label);
    m_dscChannelsBox->setToolTip(isSeparating ? tr("set number of ST Channels")
                                              : tr("set number of DSC Channels"));
}

int ResourceSelectionDialog::detectorTypePosition() const
{
    return m_detectorTypeBox ? JobXml::Detector::GetGUITypes().indexOf(m_detectorTypeBox->currentText()) : -1;
}

bool ResourceSelectionDialog::checkComboBoxEqual(const QComboBox* box, const QStringList& list)
{
    if (box->count() != list.size())
        return false;
    for (int index = 0; index < box->count(); ++index) {
        if (!list.contains(box->itemText(index)))
            return false;
    }
    return true;
}

void ResourceSelectionDialog::takeResults()
{
    m_recordLocation =
        nameOf(m_recordLocationBox->currentText(), JobXml::ResourceDescription::GetGUIRecordLocations(),
               JobXml::ResourceDescription::GetRecordLocations());
    const int type = detectorTypePosition();
    m_detectorSelected = isChecked(m_detectorBox);
    m_detectorType = JobXml::Detector::GetTypes().value(type);
    m_production = type == DETECTOR_WITH_PRODUCTION && m_productionBox->isChecked();
    m_dscChannels = m_dscChannelsBox ? m_dscChannelsBox->value() : 0;
    m_detectorRecordLocation = m_production ? nameOf(m_detectorRecordLocationBox->currentText(),
                                                     JobXml::Detector::GetGUIRecordLocations(),
                                                     JobXml::Detector::GetRecordLocations())
                                            : QString();

    const bool isSeparating = type == DETECTOR_WITH_SEPARATION;
    m_autoSeparation = isSeparating && m_autoSeparationBox->isChecked();
    m_filterSeparation = isSeparating && m_filterSeparationBox->isChecked();
    m_onlineRecombination = isSeparating && m_onlineRecombinationBox->isChecked();
    m_minCoverage = static_cast<unsigned int>(isSeparating ? m_minCoverageBox->value() : DEFAULT_COVERAGE);
    m_autoRecording = isSeparating && m_autoRecordingBox->isChecked();
    m_detectorBaseResource =
        m_detectorSelected && m_dscChannels >= 1 ? m_detectorBaseResourceBox->currentText() : QString();
    m_preClassifier = isChecked(m_preClassifierBox);
}

void ResourceSelectionDialog::resetResults()
{
    m_selectedDescription.reset();
    for (QString* text : {&m_startupMode, &m_recordLocation, &m_detectorType, &m_detectorRecordLocation,
                          &m_detectorBaseResource})
        text->clear();
    for (bool* flag : {&m_detectorSelected, &m_production, &m_autoSeparation, &m_filterSeparation,
                       &m_onlineRecombination, &m_autoRecording, &m_preClassifier})
        *flag = false;
    m_dscChannels = 0;
    m_minCoverage = 0;
}

} // namespace JEDVEPLUGIN
