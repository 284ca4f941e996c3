#include "subjobwidget.h"

#include "filterintegerrangeproxymodel.h"
#include "jedcommonhelper.h"
#include "resourcedescription.h"
#include "selectableresourcemodel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTableView>

namespace JEDVEPLUGIN {

namespace {

const int USUAL_DETECTOR_RECORD_LOCATION = 1;

/// The entry of \p to at the place that \p text has in \p from, a null string if it has none.
QString counterpart(const QString& text, const QStringList& from, const QStringList& to)
{
    return to.value(from.indexOf(text));
}

/// Chooses the entry with that text, none if there is none.
void select(QComboBox* box, const QString& text)
{
    box->setCurrentIndex(box->findText(text));
}

/// Offers other entries. A choice out of one is none.
void fill(QComboBox* box, const QStringList& texts)
{
    box->clear();
    box->addItems(texts);
    box->setEnabled(box->count() > 1);
}

} // namespace

SubJobWidget::SubJobWidget(bool detectorVisible, bool preClassifierVisible, QWidget* parent)
    : QWidget(parent)
{
    layOut();
    setRowVisible(m_preClassifier, preClassifierVisible);
    setRowVisible(m_detector, detectorVisible);
    connectFields();
    setDetector(false, {});
}

void SubJobWidget::setResourceDescription(std::shared_ptr<ResourceDescription> description,
                                          const QStringList& allowedStartupModes)
{
    if (!description)
        return;

    // Only this widget is quiet: the slots of the fields run and bring the other fields into line.
    const QSignalBlocker quiet(this);
    const QString type = description->getType();
    m_name->setText(description->getName());
    m_baseResource->setText(description->getBaseResource());
    m_type->setText(type);

    fill(m_recordLocation, JEDCommonHelper::getAvailableGUIRecordLocations(type));
    select(m_recordLocation, JEDCommonHelper::getDefaultGUIRecordLocation(type));
    fill(m_startupModes, JEDCommonHelper::startupModesToGUI(JEDCommonHelper::restrictedStartupModes(
                             description->getStartupModes(), allowedStartupModes)));
    fill(m_detectorType, JEDCommonHelper::getAvailableDetectorTypes(type));
    m_detectorRecordLocation->clear();
    m_detectorRecordLocation->addItems(JobXml::Detector::GetGUIRecordLocations());
    m_detectorRecordLocation->setCurrentIndex(USUAL_DETECTOR_RECORD_LOCATION);
    fill(m_detectorBaseResource, description->getConnectableResources());
}

void SubJobWidget::setStartupMode(const QString& mode)
{
    select(m_startupModes, JEDCommonHelper::startupModeToGUI(mode));
}

QString SubJobWidget::getStartupMode() const
{
    if (m_startupModes->currentIndex() < 0)
        return "";
    return JEDCommonHelper::startupModeFromGUI(m_startupModes->currentText());
}

void SubJobWidget::setRecordLocation(const QString& location)
{
    using JobXml::ResourceDescription;
    select(m_recordLocation, counterpart(location, ResourceDescription::GetRecordLocations(),
                                         ResourceDescription::GetGUIRecordLocations()));
}

QString SubJobWidget::getRecordLocation() const
{
    using JobXml::ResourceDescription;
    return counterpart(m_recordLocation->currentText(), ResourceDescription::GetGUIRecordLocations(),
                       ResourceDescription::GetRecordLocations());
}

void SubJobWidget::setDetectorRecordLocation(const QString& location)
{
    using JobXml::Detector;
    select(m_detectorRecordLocation,
           counterpart(location, Detector::GetRecordLocations(), Detector::GetGUIRecordLocations()));
}

QString SubJobWidget::getDetectorRecordLocation() const
{
    using JobXml::Detector;
    if (!isProductionSet() || !hasDetectorOption(DetectorProduction))
        return "";
    return counterpart(m_detectorRecordLocation->currentText(), Detector::GetGUIRecordLocations(),
                       Detector::GetRecordLocations());
}

void SubJobWidget::setDetectorType(const QString& type)
{
    const QString text = JEDCommonHelper::detectorTypeToGUI(type);
    if (text != m_detectorType->currentText()) {
        if (m_detectorType->findText(text) < 0)
            m_detectorType->addItem(text);
        select(m_detectorType, text);
    }
    updateDSCChannelText();
}

QString SubJobWidget::getDetectorType() const
{
    return JEDCommonHelper::detectorTypeFromGUI(m_detectorType->currentText());
}

void SubJobWidget::setDetectorBaseResource(const QString& baseResource)
{
    select(m_detectorBaseResource, baseResource);
}

QString SubJobWidget::getDetectorBaseResource() const
{
    return isDetectorBaseResourceNeeded() ? m_detectorBaseResource->currentText() : QString("");
}

void SubJobWidget::setDSCChannels(int channels)
{
    m_dscChannels->setValue(channels);
}

int SubJobWidget::getDSCChannels() const
{
    return m_dscChannels->value();
}

void SubJobWidget::setMinCoverage(unsigned int coverage)
{
    const auto most = static_cast<unsigned int>(m_minCoverage->maximum());
    m_minCoverage->setValue(static_cast<int>(qMin(coverage, most)));
}

unsigned int SubJobWidget::getMinCoverage() const
{
    return static_cast<unsigned int>(m_minCoverage->value());
}

void SubJobWidget::setPreClassifier(bool on)
{
    m_preClassifier->setChecked(on);
}

bool SubJobWidget::isPreClassifierSet() const
{
    return m_preClassifier->isChecked();
}

void SubJobWidget::setProduction(bool on)
{
    m_production->setChecked(on);
}

bool SubJobWidget::isProductionSet() const
{
    return m_production->isChecked();
}

void SubJobWidget::setAutoSeparation(bool on)
{
    m_autoSeparation->setChecked(on);
}

bool SubJobWidget::isAutoSeparationSet() const
{
    return m_autoSeparation->isChecked();
}

void SubJobWidget::setFilterSeparation(bool on)
{
    m_filterSeparation->setChecked(on);
}

bool SubJobWidget::isFilterSeparationSet() const
{
    return m_filterSeparation->isChecked();
}

void SubJobWidget::setOnlineRecombination(bool on)
{
    m_onlineRecombination->setChecked(on);
}

bool SubJobWidget::isOnlineRecombinationSet() const
{
    return m_onlineRecombination->isChecked();
}

void SubJobWidget::setAutoRecording(bool on)
{
    m_autoRecording->setChecked(on);
}

bool SubJobWidget::isAutoRecordingSet() const
{
    return m_autoRecording->isChecked();
}

bool SubJobWidget::isDetectorSet() const
{
    return m_detector->isChecked();
}

void SubJobWidget::enableDetector(bool enable)
{
    m_detector->setEnabled(enable);
}

void SubJobWidget::setSCPModel(QAbstractItemModel* model)
{
    if (getSCPModel())
        disconnect(getSCPModel(), nullptr, this, nullptr);
    m_scpProxy->setSourceModel(model);
    m_scpView->resizeColumnsToContents();
    if (!model)
        return;
    connect(model, &QAbstractItemModel::dataChanged, this, &SubJobWidget::slotValidateDetectorBaseResource);
    connect(model, &QAbstractItemModel::modelReset, this, &SubJobWidget::slotValidateDetectorBaseResource);
}

QAbstractItemModel* SubJobWidget::getSCPModel() const
{
    return m_scpProxy->sourceModel();
}

void SubJobWidget::blockAllSignals(bool block)
{
    QWidget* const fields[] = {this,
                               m_recordLocation,
                               m_startupModes,
                               m_preClassifier,
                               m_detector,
                               m_detectorType,
                               m_production,
                               m_autoSeparation,
                               m_filterSeparation,
                               m_onlineRecombination,
                               m_detectorRecordLocation,
                               m_dscChannels,
                               m_detectorBaseResource,
                               m_minCoverage,
                               m_autoRecording,
                               m_scpView};
    for (QWidget* field : fields)
        field->blockSignals(block);
}

void SubJobWidget::setRowVisible(QWidget* field, bool visible)
{
    m_labels.value(field)->setVisible(visible);
    field->setVisible(visible);
}

} // namespace JEDVEPLUGIN
