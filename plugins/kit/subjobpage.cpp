#include <kit/detectorchoice.h>
#include <kit/kitfactory.h>
#include <kit/subjobpage.h>

#include <jedcommonhelper.h>
#include <resourcedescription.h>
#include <selectableresourcemodel.h>

#include <QScopedValueRollback>

using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::SelectableResourceModel;
using JEDVEPLUGIN::SubJobWidget;

namespace PluginKit {

SubjobPage::SubjobPage(const KitFactory& factory, SubjobNode& node)
    : SubJobWidget(factory.declared().hasDetector, factory.declared().hasPreClassifier, nullptr)
    , m_factory(factory)
    , m_node(node)
    , m_autonomous(new SelectableResourceModel(factory.receivers(), this))
{
    setSCPModel(m_autonomous);
    load();
    connectFields();
}

void SubjobPage::load()
{
    if (m_isBusy)
        return;
    const QScopedValueRollback<bool> busy(m_isBusy, true);
    const JobXml::Subjob& header = m_node.header();
    blockAllSignals(true);
    setResourceDescription(m_node.resource(),
                           JEDCommonHelper::allowedStartupModeString(m_factory.getCurrentJobType()));
    setStartupMode(JobXml::Subjob::StartupModeToName(header.GetStartupMode()));
    setRecordLocation(JobXml::ResourceDescription::RecordLocationToName(
        header.GetResourceDescription().GetRecordLocation()));
    setPreClassifier(header.GetPreClassifier());
    loadAutonomousReceivers(header);
    loadDetector(header);
    blockAllSignals(false);
}

void SubjobPage::connectFields()
{
    const auto changed = [this] { store(); };
    connect(this, &SubJobWidget::startUpModeChanged, this, changed);
    connect(this, &SubJobWidget::recordLocationChanged, this, changed);
    connect(this, &SubJobWidget::preClassifierChanged, this, changed);
    connect(this, &SubJobWidget::detectorChanged, this, changed);
    connect(this, &SubJobWidget::productionChanged, this, changed);
    connect(this, &SubJobWidget::dscChannelChanged, this, changed);
    connect(this, &SubJobWidget::detectorRecordLocationChanged, this, changed);
    connect(this, &SubJobWidget::detectorBaseResourceChanged, this, changed);
    connect(this, &SubJobWidget::autoSeparationChanged, this, changed);
    connect(this, &SubJobWidget::filterSeparationChanged, this, changed);
    connect(this, &SubJobWidget::onlineRecombinationChanged, this, changed);
    connect(this, &SubJobWidget::minCoverageChanged, this, changed);
    connect(this, &SubJobWidget::autoRecordingChanged, this, changed);
    connect(m_autonomous, &SelectableResourceModel::dataChanged, this, changed);
    connect(this, &SubJobWidget::detectorTypeChanged, this, [this] {
        showDetectorFields();
        store();
    });
}

void SubjobPage::loadDetector(const JobXml::Subjob& header)
{
    const JobXml::Detector detector = header.GetDetector().value(0);
    if (!header.GetDetector().isEmpty())
        setDetectorType(JobXml::Detector::TypeToName(detector.GetType()));
    setProduction(detector.GetProduction());
    setDetectorRecordLocation(JobXml::Detector::RecordLocationToName(detector.GetRecordLocation()));
    setAutoSeparation(detector.GetAutoSeparation());
    setFilterSeparation(detector.GetFilterSeparation());
    setOnlineRecombination(detector.GetOnlineRecombination());
    setDSCChannels(detector.GetDSCChannels());
    setDetectorBaseResource(detector.GetBaseResource());
    setMinCoverage(static_cast<unsigned int>(detector.GetMinCoverage()));
    setAutoRecording(detector.GetAutoRecording());
    enableDetector(JEDCommonHelper::supportsDetector(m_factory.getCurrentJobType()));
    setDetector(!header.GetDetector().isEmpty(), detectorOptions());
}

void SubjobPage::loadAutonomousReceivers(const JobXml::Subjob& header)
{
    m_autonomous->slotDeselectAll();
    const JobXml::Detector detector = header.GetDetector().value(0);
    for (const JobXml::AutonomousSCP& receiver : detector.GetAutonomousSCP())
        m_autonomous->setSelectionCount(
            m_factory.receiver(receiver.GetBaseResource(),
                               JobXml::AutonomousSCP::TypeToName(receiver.GetType())),
            receiver.GetCount());
}

void SubjobPage::showDetectorFields()
{
    const QScopedValueRollback<bool> busy(m_isBusy, true);
    setDetector(isDetectorSet(), detectorOptions());
}

void SubjobPage::store()
{
    if (m_isBusy)
        return;
    const QScopedValueRollback<bool> busy(m_isBusy, true);
    JobXml::Subjob header = m_node.header();
    const auto mode = JobXml::Subjob::NameToStartupMode(getStartupMode());
    if (mode >= 0)
        header.SetStartupMode(mode);
    const auto location = JobXml::ResourceDescription::NameToRecordLocation(getRecordLocation());
    if (location >= 0 && location != header.GetResourceDescription().GetRecordLocation())
        header.GetResourceDescription().SetRecordLocation(location);
    if (isPreClassifierSet() != header.GetPreClassifier())
        header.SetPreClassifier(isPreClassifierSet());
    PluginKit::setDetector(detectorChoice(*this, isDetectorSet()), &header);
    storeAutonomousReceivers(&header);
    m_node.setHeader(header);
}

// Receivers that this installation does not have stay in the list.
void SubjobPage::storeAutonomousReceivers(JobXml::Subjob* header) const
{
    QVector<JobXml::Detector> detectors = std::as_const(*header).GetDetector();
    if (detectors.isEmpty())
        return;
    QVector<JobXml::AutonomousSCP> wanted;
    for (const JobXml::AutonomousSCP& present : std::as_const(detectors.first()).GetAutonomousSCP()) {
        if (!m_factory.receiver(present.GetBaseResource(),
                                JobXml::AutonomousSCP::TypeToName(present.GetType())))
            wanted.append(present);
    }
    for (const auto& description : m_autonomous->getSelectedResources()) {
        JobXml::AutonomousSCP receiver;
        receiver.SetType(static_cast<JobXml::AutonomousSCP::Type>(
            JobXml::AutonomousSCP::NameToType(description->getType())));
        receiver.SetBaseResource(description->getBaseResource());
        receiver.SetCount(m_autonomous->getSelectionCount(description));
        wanted.append(receiver);
    }
    detectors.first().SetAutonomousSCP(wanted);
    header->SetDetector(detectors);
}

SubJobWidget::DetectorOptions SubjobPage::detectorOptions() const
{
    const JobXml::ResourceDescription::Type resource = m_node.header().GetResourceDescription().GetType();
    const auto detector =
        static_cast<JobXml::Detector::Type>(JobXml::Detector::NameToType(getDetectorType()));
    DetectorOptions options;
    options.setFlag(DetectorProduction, JEDCommonHelper::supportsProduction(detector));
    options.setFlag(DetectorChannels, JEDCommonHelper::supportsDSCChannel(resource, detector));
    options.setFlag(DetectorScpList, JEDCommonHelper::supportsAutonomousSCPs(resource));
    options.setFlag(DetectorSeparation, JEDCommonHelper::supportsDetectorProcessingSettings(detector));
    options.setFlag(DetectorMinCoverage, JEDCommonHelper::supportsMinCoverage(detector));
    options.setFlag(DetectorAutoRecording, JEDCommonHelper::supportsAutoRecording(detector));
    options.setFlag(DetectorBaseResourceForChannels, JEDCommonHelper::supportsDetectorBaseResource(detector));
    return options;
}

} // namespace PluginKit
