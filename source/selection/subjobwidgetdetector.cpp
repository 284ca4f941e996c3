#include "subjobwidget.h"

#include "filterintegerrangeproxymodel.h"
#include "jedcommonhelper.h"
#include "selectableresourcemodel.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMetaMethod>
#include <QPointer>
#include <QSpinBox>
#include <QTableView>

namespace JEDVEPLUGIN {

namespace {

struct ScpAction
{
    const char* text;
    const char* slot; // of the model, if it has it
};

const ScpAction SCP_ACTIONS[] = {
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Select All"), "slotSelectAll()"},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Select All (Max)"), "slotSelectAllMax()"},
    {QT_TRANSLATE_NOOP("JEDVEPLUGIN::SubJobWidget", "Clear All"), "slotDeselectAll()"},
};

/// Calls a slot of \p model by its name, since any model may be shown; without that slot it is disabled.
void connectTo(QAction* action, QAbstractItemModel* model, const char* slot)
{
    const int index = model ? model->metaObject()->indexOfSlot(slot) : -1;
    action->setEnabled(index >= 0);
    if (index < 0)
        return;
    const QMetaMethod method = model->metaObject()->method(index);
    QObject::connect(action, &QAction::triggered, model, [model, method] { method.invoke(model); });
}

SubJobWidget::DetectorOptions optionsOf(JobXml::ResourceDescription::Type tuner,
                                        JobXml::Detector::Type detector)
{
    using Helper = JEDCommonHelper;
    SubJobWidget::DetectorOptions options;
    options.setFlag(SubJobWidget::DetectorProduction, Helper::supportsProduction(detector));
    options.setFlag(SubJobWidget::DetectorChannels, Helper::supportsDSCChannel(tuner, detector));
    options.setFlag(SubJobWidget::DetectorScpList, Helper::supportsAutonomousSCPs(tuner));
    options.setFlag(SubJobWidget::DetectorSeparation, Helper::supportsDetectorProcessingSettings(detector));
    options.setFlag(SubJobWidget::DetectorMinCoverage, Helper::supportsMinCoverage(detector));
    options.setFlag(SubJobWidget::DetectorAutoRecording, Helper::supportsAutoRecording(detector));
    options.setFlag(SubJobWidget::DetectorBaseResourceForChannels,
                    Helper::supportsDetectorBaseResource(detector));
    return options;
}

} // namespace

void SubJobWidget::setDetector(bool on, const QFlags<DetectorOption>& flags)
{
    m_detectorEnabled = on;
    m_detectorOptions = flags;
    if (m_detector->isChecked() != on) {
        m_detector->setChecked(on);
        // The box has come back here with the options that belong to its types: the caller's are what counts.
        m_detectorEnabled = on;
        m_detectorOptions = flags;
    }

    setRowVisible(m_detectorType, on);
    setRowVisible(m_production, hasDetectorOption(DetectorProduction));
    for (QWidget* field : {m_autoSeparation, m_filterSeparation, m_onlineRecombination})
        setRowVisible(field, hasDetectorOption(DetectorSeparation));
    setRowVisible(m_scpView,
                  hasDetectorOption(DetectorScpList) && getSCPModel() && getSCPModel()->rowCount() > 0);
    if (m_detectorOptions.testFlag(DetectorSeparation))
        slotOnlineRecombinationChanged(m_onlineRecombination->checkState());
    else
        setRowVisible(m_dscChannels, hasDetectorOption(DetectorChannels));
    slotDSCChannelChanged(m_dscChannels->value());
    slotProductionChanged(m_production->checkState());
}

void SubJobWidget::slotProductionChanged(int state)
{
    setRowVisible(m_detectorRecordLocation, state != Qt::Unchecked && hasDetectorOption(DetectorProduction));
    emit productionChanged(state != Qt::Unchecked);
    emit detectorRecordLocationChanged(getDetectorRecordLocation());
}

void SubJobWidget::slotDSCChannelChanged(int channels)
{
    slotValidateDetectorBaseResource();
    const bool hasChannels = isOnlineRecombinationSet() && channels > 0;
    setRowVisible(m_minCoverage, hasChannels && hasDetectorOption(DetectorMinCoverage));
    setRowVisible(m_autoRecording, hasChannels && hasDetectorOption(DetectorAutoRecording));
}

void SubJobWidget::slotDetectorChanged(int state)
{
    const bool on = state != Qt::Unchecked;
    setDetector(on, optionsOf(JobXml::ResourceDescription::NameToType(m_type->text()),
                              JobXml::Detector::NameToType(getDetectorType())));
    emit detectorChanged(on);
}

void SubJobWidget::slotDetectorTypeChanged(const QString& text)
{
    emit detectorTypeChanged(
        JobXml::Detector::GetTypes().value(JobXml::Detector::GetGUITypes().indexOf(text)));
    updateDSCChannelText();
}

void SubJobWidget::slotRecordLocationChanged(const QString&)
{
    emit recordLocationChanged(getRecordLocation());
}

void SubJobWidget::slotDetectorRecordLocationChanged(const QString&)
{
    emit detectorRecordLocationChanged(getDetectorRecordLocation());
}

void SubJobWidget::slotDetectorBaseResourceChanged(const QString&)
{
    emit detectorBaseResourceChanged(getDetectorBaseResource());
}

void SubJobWidget::slotSCPViewContextMenu(const QPoint& pos)
{
    const QPointer<QMenu> menu = new QMenu(this);
    for (const ScpAction& row : SCP_ACTIONS)
        connectTo(menu->addAction(tr(row.text)), getSCPModel(), row.slot);
    menu->addSeparator();
    QAction* hide = menu->addAction(tr("Hide unavailable resources"));
    hide->setCheckable(true);
    hide->setChecked(m_scpProxy->isRangeFilterEnabled());
    connect(hide, &QAction::toggled, m_scpProxy, &FilterIntegerRangeProxyModel::enableRangeFilter);

    menu->exec(m_scpView->viewport()->mapToGlobal(pos));
    delete menu; // Gone already if this widget was deleted meanwhile.
}

void SubJobWidget::slotValidateDetectorBaseResource()
{
    setRowVisible(m_detectorBaseResource,
                  isDetectorBaseResourceNeeded() && m_detectorBaseResource->count() > 0);
    emit detectorBaseResourceChanged(getDetectorBaseResource());
}

void SubJobWidget::slotStartUpModeChanged(const QString& text)
{
    emit startUpModeChanged(JEDCommonHelper::startupModeFromGUI(text));
}

void SubJobWidget::slotAutoSeparationChanged(int state)
{
    emit autoSeparationChanged(state != Qt::Unchecked);
}

void SubJobWidget::slotFilterSeparationChanged(int state)
{
    emit filterSeparationChanged(state != Qt::Unchecked);
}

void SubJobWidget::slotOnlineRecombinationChanged(int state)
{
    emit onlineRecombinationChanged(state != Qt::Unchecked);
    if (!m_detectorOptions.testFlag(DetectorSeparation))
        return;
    setRowVisible(m_dscChannels, state != Qt::Unchecked && m_detectorEnabled);
    slotDSCChannelChanged(m_dscChannels->value());
}

void SubJobWidget::slotMinCoverageChanged(int coverage)
{
    emit minCoverageChanged(static_cast<quint32>(coverage));
}

void SubJobWidget::slotAutoRecordingChanged(int state)
{
    emit autoRecordingChanged(state != Qt::Unchecked);
}

void SubJobWidget::connectFields()
{
    // By name: for function pointers the overload with the text is deprecated.
    const char* const chosen = SIGNAL(currentIndexChanged(const QString&));
    connect(m_startupModes, chosen, this, SLOT(slotStartUpModeChanged(const QString&)));
    connect(m_detectorType, chosen, this, SLOT(slotDetectorTypeChanged(const QString&)));
    connect(m_recordLocation, chosen, this, SLOT(slotRecordLocationChanged(const QString&)));
    connect(m_detectorRecordLocation, chosen, this, SLOT(slotDetectorRecordLocationChanged(const QString&)));
    connect(m_detectorBaseResource, chosen, this, SLOT(slotDetectorBaseResourceChanged(const QString&)));

    const auto edited = QOverload<int>::of(&QSpinBox::valueChanged);
    connect(m_dscChannels, edited, this, &SubJobWidget::dscChannelChanged);
    connect(m_dscChannels, edited, this, &SubJobWidget::slotDSCChannelChanged);
    connect(m_minCoverage, edited, this, &SubJobWidget::slotMinCoverageChanged);

    const auto switched = &QCheckBox::stateChanged;
    connect(m_production, switched, this, &SubJobWidget::slotProductionChanged);
    connect(m_detector, switched, this, &SubJobWidget::slotDetectorChanged);
    connect(m_autoSeparation, switched, this, &SubJobWidget::slotAutoSeparationChanged);
    connect(m_filterSeparation, switched, this, &SubJobWidget::slotFilterSeparationChanged);
    connect(m_onlineRecombination, switched, this, &SubJobWidget::slotOnlineRecombinationChanged);
    connect(m_autoRecording, switched, this, &SubJobWidget::slotAutoRecordingChanged);
    connect(m_preClassifier, &QCheckBox::toggled, this, &SubJobWidget::preClassifierChanged);

    connect(m_scpView, &QTableView::customContextMenuRequested, this, &SubJobWidget::slotSCPViewContextMenu);
}

bool SubJobWidget::hasDetectorOption(DetectorOption option) const
{
    return m_detectorEnabled && m_detectorOptions.testFlag(option);
}

void SubJobWidget::updateDSCChannelText()
{
    const bool isHopper = JobXml::Detector::GetGUITypes().indexOf(m_detectorType->currentText()) ==
                          JobXml::Detector::TYPE_HOPPERDETECTOR;
    const QString label = isHopper ? tr("ST Channels") : tr("DSC Channels");
    m_labels.value(m_dscChannels)->setText(label);
    m_dscChannels->setAccessibleName(label);
    m_dscChannels->setToolTip(isHopper ? tr("set number of ST Channels") : tr("set number of DSC Channels"));
}

bool SubJobWidget::isDetectorBaseResourceNeeded() const
{
    const auto* scps = qobject_cast<const SelectableResourceModel*>(getSCPModel());
    const bool neededForSCPs =
        scps && m_detectorOptions.testFlag(DetectorScpList) && scps->getSelectionCount(nullptr) > 0;
    if (!hasDetectorOption(DetectorBaseResourceForChannels))
        return neededForSCPs;
    if (!m_detectorOptions.testFlag(DetectorChannels))
        return true;
    const bool withoutChannels =
        m_detectorOptions.testFlag(DetectorSeparation) && !isOnlineRecombinationSet();
    return (!withoutChannels && getDSCChannels() > 0) || neededForSCPs;
}

} // namespace JEDVEPLUGIN
