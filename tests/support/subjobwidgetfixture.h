#pragma once

#include "resourcedescription.h"
#include "subjobwidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStringList>
#include <QTableView>

#include <memory>
#include <utility>

namespace JedTest {

using JEDVEPLUGIN::ResourceDescription;
using JEDVEPLUGIN::SubJobWidget;

inline const QStringList ALL_MODES = {"Manual", "Automatic", "Timed", "Permanent", "OnRequest"};
inline const QStringList RECORD_LOCATIONS = {"None", "Receiver", "Station", "Center"};
inline const QStringList RECORD_LOCATION_TEXTS = {"Not recorded", "At the receiver", "Server of the station",
                                                  "Monitoring centre"};
inline const QStringList DETECTOR_LOCATIONS = {"Detector", "Station", "Center"};
inline const QStringList DETECTOR_LOCATION_TEXTS = {"At the detector", "Server of the station",
                                                    "Monitoring centre"};

inline QStringList entries(const QComboBox* box)
{
    QStringList texts;
    for (int index = 0; index < box->count(); ++index)
        texts << box->itemText(index);
    return texts;
}

/// A tuner "Tuner of BASE" as its property file describes it. The type is free.
inline std::shared_ptr<ResourceDescription> tuner(const QString& type, const QString& base,
                                                  const QStringList& startupModes = {},
                                                  const QStringList& connectableResources = {})
{
    QString modes;
    for (const QString& mode : startupModes)
        modes += "<StartupMode>" + mode + "</StartupMode>";
    auto description = std::make_shared<ResourceDescription>(
        QString(
            "<TunerProperties version='1.1' name='Tuner of %1' type='HT720' baseresource='%1' quantity='4' "
            "connectableResources='%2'><StartupModes>%3</StartupModes>"
            "<Component type='Tuner' name='ADemComponent' optional='false'/></TunerProperties>")
            .arg(base, connectableResources.join(','), modes));
    description->setType(type);
    return description;
}

/// The fields of a widget by their object names.
struct SubJobFields
{
    explicit SubJobFields(const QWidget& widget)
        : m_widget(&widget)
    {
    }
    QLineEdit* line(const char* name) const { return m_widget->findChild<QLineEdit*>(name); }
    QComboBox* combo(const char* name) const { return m_widget->findChild<QComboBox*>(name); }
    QCheckBox* check(const char* name) const { return m_widget->findChild<QCheckBox*>(name); }
    QSpinBox* spin(const char* name) const { return m_widget->findChild<QSpinBox*>(name); }
    QLabel* label(const char* name) const { return m_widget->findChild<QLabel*>(name); }
    QTableView* scps() const { return m_widget->findChild<QTableView*>("subjobWidget_DetectorSCPList"); }
    QComboBox* recordLocation() const { return combo("subJobWidget_RecordLocation"); }
    QComboBox* startupModes() const { return combo("subJobWidget_StartupModes"); }
    QCheckBox* preClassifier() const { return check("subJobWidget_PreClassifier"); }
    QCheckBox* detector() const { return check("subjobWidget_Detector"); }
    QComboBox* detectorType() const { return combo("subjobWidget_DetectorType"); }
    QCheckBox* production() const { return check("subjobWidget_Production"); }
    QCheckBox* autoSeparation() const { return check("subjobWidget_AutoSeparation"); }
    QCheckBox* filterSeparation() const { return check("subjobWidget_FilterSeparation"); }
    QCheckBox* onlineRecombination() const { return check("subjobWidget_OnlineRecombination"); }
    QComboBox* detectorRecordLocation() const { return combo("subJobWidget_DetectorRecordLocation"); }
    QSpinBox* channels() const { return spin("subjobWidget_DSCChannels"); }
    QComboBox* detectorBaseResource() const { return combo("subJobWidget_DetectorBaseResource"); }
    QSpinBox* minCoverage() const { return spin("subjobWidget_MinCoverage"); }
    QCheckBox* autoRecording() const { return check("subjobWidget_AutoRecording"); }

private:
    const QWidget* m_widget;
};

/// The fields of the detector that are not hidden, by short names. A field whose label does not go with it is told
/// as "NAME without its label" or "label of NAME alone".
inline QString visibleDetectorFields(const SubJobWidget& widget)
{
    struct Row
    {
        const char* shortName;
        const char* labelName;
        const char* fieldName;
    };
    static const Row ROWS[] = {
        {"type", "subjobWidget_DetectorTypeLabel", "subjobWidget_DetectorType"},
        {"production", "subjobWidget_ProductionLabel", "subjobWidget_Production"},
        {"auto", "subjobWidget_AutoSeparationLabel", "subjobWidget_AutoSeparation"},
        {"filter", "subjobWidget_FilterSeparationLabel", "subjobWidget_FilterSeparation"},
        {"online", "subjobWidget_OnlineRecombinationLabel", "subjobWidget_OnlineRecombination"},
        {"location", "subJobWidget_DetectorRecordLocationLabel", "subJobWidget_DetectorRecordLocation"},
        {"channels", "subjobWidget_DSCChannelsLabel", "subjobWidget_DSCChannels"},
        {"base", "subJobWidget_DetectorBaseResourceLabel", "subJobWidget_DetectorBaseResource"},
        {"coverage", "subjobWidget_MinCoverage", "subjobWidget_MinCoverage"},
        {"recording", "subjobWidget_AutoRecordingLabel", "subjobWidget_AutoRecording"},
        {"scps", "subjobWidget_SCPListLabel", "subjobWidget_DetectorSCPList"},
    };
    QStringList visible;
    for (const Row& row : ROWS) {
        bool labelShown = false;
        bool fieldShown = false;
        for (const QWidget* child : widget.findChildren<QWidget*>(row.labelName)) {
            if (qobject_cast<const QLabel*>(child))
                labelShown = !child->isHidden();
        }
        for (const QWidget* child : widget.findChildren<QWidget*>(row.fieldName)) {
            if (!qobject_cast<const QLabel*>(child))
                fieldShown = !child->isHidden();
        }
        if (fieldShown)
            visible << (labelShown ? QString(row.shortName) : QString(row.shortName) + " without its label");
        else if (labelShown)
            visible << QString("label of ") + row.shortName + " alone";
    }
    return visible.join(' ');
}

/// The signals of a sub-job widget in the order of their emission.
class SubJobSignals : public QObject
{
public:
    explicit SubJobSignals(SubJobWidget* widget)
    {
        listen(widget, "startUpMode", &SubJobWidget::startUpModeChanged);
        listen(widget, "production", &SubJobWidget::productionChanged);
        listen(widget, "channels", &SubJobWidget::dscChannelChanged);
        listen(widget, "detector", &SubJobWidget::detectorChanged);
        listen(widget, "type", &SubJobWidget::detectorTypeChanged);
        listen(widget, "location", &SubJobWidget::recordLocationChanged);
        listen(widget, "detectorLocation", &SubJobWidget::detectorRecordLocationChanged);
        listen(widget, "base", &SubJobWidget::detectorBaseResourceChanged);
        listen(widget, "preClassifier", &SubJobWidget::preClassifierChanged);
        listen(widget, "auto", &SubJobWidget::autoSeparationChanged);
        listen(widget, "filter", &SubJobWidget::filterSeparationChanged);
        listen(widget, "online", &SubJobWidget::onlineRecombinationChanged);
        listen(widget, "coverage", &SubJobWidget::minCoverageChanged);
        listen(widget, "recording", &SubJobWidget::autoRecordingChanged);
    }
    QString take() { return std::exchange(m_log, QStringList()).join(' '); }

private:
    template <typename Argument>
    void listen(SubJobWidget* widget, const char* name, void (SubJobWidget::*told)(Argument))
    {
        connect(widget, told, this, [this, name](Argument argument) {
            m_log << QString("%1(%2)").arg(name, QVariant(argument).toString());
        });
    }

    QStringList m_log;
};

} // namespace JedTest
