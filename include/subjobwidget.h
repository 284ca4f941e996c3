#pragma once

#include "jedvepb_export.h"

#include <QFlags>
#include <QHash>
#include <QWidget>

#include <memory>

class QAbstractItemModel;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTableView;
class QVBoxLayout;

namespace JEDVEPLUGIN {

class FilterIntegerRangeProxyModel;
class ResourceDescription;

/// Shows and edits the settings of one sub-job whose resource has been chosen: where it records, how it starts,
/// what its detector does and which autonomous SCPs the detector may use.
///
/// What the user changes is announced by a signal per setting. A plug-in loads a sub-job that is stored with
/// setResourceDescription(), the setters and setDetector(), between blockAllSignals(true) and
/// blockAllSignals(false) if nobody shall hear of it. Setters and getters use the names of the job file, the
/// boxes show the texts for the user; a name that a box does not offer leaves it without a current entry, save
/// for setDetectorType(). A setter that changes something emits what the user's change would. The fields of
/// settings that the detector does not have are hidden. GUI thread only.
class JEDVEPB_EXPORT SubJobWidget : public QWidget
{
    Q_OBJECT
public:
    /// What the detector of a sub-job has.
    enum DetectorOption {
        DetectorProduction = 1,   ///< production; its record location while production is checked
        DetectorChannels = 2,     ///< number of DSC or ST channels
        DetectorScpList = 4,      ///< autonomous SCPs; if any is chosen, a detector base resource
        DetectorSeparation = 8,   ///< separations, online recombination; channels only while that is checked
        DetectorMinCoverage = 16, ///< minimum coverage, with online recombination and channels
        DetectorAutoRecording = 32,          ///< automatic recording, with online recombination and channels
        DetectorBaseResourceForChannels = 64 ///< a detector base resource for the channels
    };
    Q_DECLARE_FLAGS(DetectorOptions, DetectorOption)

    /// The detector is off and without options, all boxes with a choice are empty.
    /// \param detectorVisible       whether the detector can be switched in this widget
    /// \param preClassifierVisible  whether the pre-classifier can
    /// \param parent                owner, may be null
    SubJobWidget(bool detectorVisible, bool preClassifierVisible, QWidget* parent);

    /// Shows another resource and offers what it allows: record locations, the start-up modes that
    /// \p allowedStartupModes admits (all if that is empty), detector types, record locations and base resources
    /// of the detector. Boxes with fewer than two entries are disabled. The usual record locations and otherwise
    /// the first entries are chosen. Nothing is emitted; the detector's options stay as they are.
    /// \param description          not kept; with an empty one nothing happens
    /// \param allowedStartupModes  names of the job file
    void setResourceDescription(std::shared_ptr<ResourceDescription> description,
                                const QStringList& allowedStartupModes);

    void setStartupMode(const QString& mode);
    /// \return empty if no mode is chosen
    QString getStartupMode() const;
    void setRecordLocation(const QString& location);
    QString getRecordLocation() const;
    void setDetectorRecordLocation(const QString& location);
    /// \return empty unless the detector is on, has production and production is checked
    QString getDetectorRecordLocation() const;
    /// \param type  appended to those that are offered if it is not among them
    void setDetectorType(const QString& type);
    QString getDetectorType() const;
    void setDetectorBaseResource(const QString& baseResource);
    /// \return empty unless the detector needs one: for channels or for autonomous SCPs
    QString getDetectorBaseResource() const;

    /// \param channels  0 to 128; others become the next that is
    void setDSCChannels(int channels);
    int getDSCChannels() const;
    /// \param coverage  percent, 0 to 100; above that it becomes 100
    void setMinCoverage(unsigned int coverage);
    unsigned int getMinCoverage() const;

    void setPreClassifier(bool on);
    bool isPreClassifierSet() const;
    void setProduction(bool on);
    bool isProductionSet() const;
    void setAutoSeparation(bool on);
    bool isAutoSeparationSet() const;
    void setFilterSeparation(bool on);
    bool isFilterSeparationSet() const;
    void setOnlineRecombination(bool on);
    bool isOnlineRecombinationSet() const;
    void setAutoRecording(bool on);
    bool isAutoRecordingSet() const;

    /// Switches the detector and shows the fields that it has. Emits productionChanged(),
    /// detectorRecordLocationChanged() and detectorBaseResourceChanged(), with DetectorSeparation
    /// onlineRecombinationChanged() too, also if nothing has changed; detectorChanged() if \p on has.
    void setDetector(bool on, const QFlags<SubJobWidget::DetectorOption>& flags);
    /// Whether the box of the detector is checked.
    bool isDetectorSet() const;
    /// Lets the user switch the detector, or not.
    void enableDetector(bool enable);

    /// The autonomous SCPs that the detector may use. The list is shown, and its choice taken into account, from the
    /// next setDetector() on; later changes of the choice are followed by detectorBaseResourceChanged().
    /// \param model  normally a SelectableResourceModel; not owned, may be null
    void setSCPModel(QAbstractItemModel* model);
    QAbstractItemModel* getSCPModel() const;

    /// Blocks or unblocks the signals of this widget and of all fields. Meanwhile the change of a field does not show
    /// or hide others either; setDetector() still does.
    void blockAllSignals(bool block);

signals:
    /// Names as in the job file, here and below.
    void startUpModeChanged(const QString& mode);
    void productionChanged(bool on);
    void dscChannelChanged(int channels);
    void detectorChanged(bool on);
    void detectorTypeChanged(const QString& type);
    void recordLocationChanged(const QString& location);
    void detectorRecordLocationChanged(const QString& location);
    void detectorBaseResourceChanged(const QString& baseResource);
    void preClassifierChanged(bool on);
    void autoSeparationChanged(bool on);
    void filterSeparationChanged(bool on);
    void onlineRecombinationChanged(bool on);
    /// \param coverage  percent
    void minCoverageChanged(quint32 coverage);
    void autoRecordingChanged(bool on);

private slots:
    void slotProductionChanged(int state);
    void slotDSCChannelChanged(int channels);
    void slotDetectorChanged(int state);
    void slotDetectorTypeChanged(const QString& text);
    void slotRecordLocationChanged(const QString& text);
    void slotDetectorRecordLocationChanged(const QString& text);
    void slotDetectorBaseResourceChanged(const QString& text);
    void slotSCPViewContextMenu(const QPoint& pos);
    void slotValidateDetectorBaseResource();
    void slotStartUpModeChanged(const QString& text);
    void slotAutoSeparationChanged(int state);
    void slotFilterSeparationChanged(int state);
    void slotOnlineRecombinationChanged(int state);
    void slotMinCoverageChanged(int coverage);
    void slotAutoRecordingChanged(int state);

private:
    void setRowVisible(QWidget* field, bool visible);
    void layOut();
    void createFields(QGridLayout* grid);
    void createSCPList(QVBoxLayout* layout);
    void connectFields();
    bool hasDetectorOption(DetectorOption option) const;
    void updateDSCChannelText();
    bool isDetectorBaseResourceNeeded() const;

    // All widgets are children of this one.
    QLineEdit* m_name = nullptr;
    QComboBox* m_recordLocation = nullptr;
    QLineEdit* m_type = nullptr;
    QLineEdit* m_baseResource = nullptr;
    QComboBox* m_startupModes = nullptr;
    QCheckBox* m_preClassifier = nullptr;
    QCheckBox* m_detector = nullptr;
    QComboBox* m_detectorType = nullptr;
    QCheckBox* m_production = nullptr;
    QCheckBox* m_autoSeparation = nullptr;
    QCheckBox* m_filterSeparation = nullptr;
    QCheckBox* m_onlineRecombination = nullptr;
    QComboBox* m_detectorRecordLocation = nullptr;
    QSpinBox* m_dscChannels = nullptr;
    QComboBox* m_detectorBaseResource = nullptr;
    QSpinBox* m_minCoverage = nullptr;
    QCheckBox* m_autoRecording = nullptr;
    QTableView* m_scpView = nullptr;
    FilterIntegerRangeProxyModel* m_scpProxy = nullptr;
    QHash<const QWidget*, QLabel*> m_labels; // Of each field.
    QFlags<DetectorOption> m_detectorOptions;
    bool m_detectorEnabled = false; // As last given to setDetector().
};

Q_DECLARE_OPERATORS_FOR_FLAGS(SubJobWidget::DetectorOptions)

} // namespace JEDVEPLUGIN
