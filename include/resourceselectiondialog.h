#pragma once

#include "jedvepb_export.h"

#include <QDialog>
#include <QHash>
#include <QMap>
#include <QStringList>

#include <memory>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace JEDVEPLUGIN {

class ResourceDescription;

/// Modal dialog in which a user picks the resource for a new sub-job: type, base resource, start-up mode
/// and record location and, where a detector is offered, the detector with its options. What does not apply
/// to the chosen type or detector is hidden. GUI thread only.
///
/// Run it with exec() and read the getters after it was accepted. A dialog that was cancelled has the neutral
/// results: no description, empty texts, false and 0. The texts of the getters are names in the job file, not
/// the texts that the user sees.
class JEDVEPB_EXPORT ResourceSelectionDialog : public QDialog
{
    Q_OBJECT
public:
    /// \param resources             what there is to choose from; of several with the same type and base
    ///                              resource the last one counts, null ones are left out
    /// \param detectorOffered       whether there are fields for a detector
    /// \param detectorPreset        whether the detector is checked to begin with; of no account for types
    ///                              without detectors
    /// \param preClassifierOffered  whether there is a check box for the pre-classifier
    /// \param allowedStartupModes   names of the start-up modes that may be offered; empty: there is no limit
    /// \param parent                owner, may be null
    ResourceSelectionDialog(const QList<std::shared_ptr<ResourceDescription>>& resources,
                            bool detectorOffered, bool detectorPreset, bool preClassifierOffered,
                            const QStringList& allowedStartupModes, QWidget* parent);

    /// \return empty if there was none to choose
    std::shared_ptr<ResourceDescription> getSelectedDescription();
    /// Empty if the resource has no start-up mode that is allowed.
    QString getSelectedStartupMode() const;
    /// Empty for types that do not let it be chosen.
    QString getSelectedRecordLocation() const;
    bool isDetectorSelected() const;
    /// Name of the detector type that is set, also while the detector is not checked.
    QString getDetectorType() const;
    /// False for every detector type but number 1 of the job file.
    bool isProductionSet() const;
    /// Channels of the detector, 0 to 128; as they were left where the field is hidden.
    int getDSCChannels() const;
    /// In percent, 0 to 100; 50 for every detector type but number 2 of the job file.
    unsigned int getMinCoverage() const;
    /// False, as the three below, for every detector type but number 2 of the job file.
    bool isAutoSeparationSet() const;
    bool isFilterSeparationSet() const;
    bool isOnlineRecombinationSet() const;
    bool isAutoRecordingSet() const;
    /// Empty unless isProductionSet().
    QString getDetectorRecordLocation() const;
    /// Empty without a detector, without channels, and if the resource has no connectable resources.
    QString getDetectorBaseResource() const;
    bool isPreClassifierSelected() const;

private slots:
    void tunerTypeChanged(const QString& type);
    void baseResourceChanged(const QString& baseResource);
    void startupModeChanged(const QString& text);
    void dialogFinished(int result);
    void detectorStateChanged(int state);
    void detectorTypeChanged(const QString& text);
    void productionStateChanged(int state);
    void dscChannelChanged(int channels);
    void onlineSeparationChanged(int state);

private:
    using BaseResources = QMap<QString, std::shared_ptr<ResourceDescription>>;

    void createLayout(bool preClassifierOffered);
    void createTunerFields(QGridLayout* grid, bool preClassifierOffered);
    void createDetectorFields(QGridLayout* grid);
    void connectFields();
    void fillRecordLocations(const QString& type);
    void offerDetector(const QStringList& types);
    void withdrawDetector();
    void setRowVisible(QWidget* field, bool visible);
    void setChannelWording(int detectorType);
    int detectorTypePosition() const;
    bool checkComboBoxEqual(const QComboBox* box, const QStringList& list);
    void takeResults();
    void resetResults();

    std::shared_ptr<ResourceDescription> m_selectedDescription;
    QString m_startupMode; // name of the current entry of the list
    QString m_recordLocation;
    bool m_detectorOffered;
    bool m_detectorSelected = false;
    QString m_detectorType;
    bool m_production = false;
    bool m_autoSeparation = false;
    bool m_filterSeparation = false;
    bool m_onlineRecombination = false;
    int m_dscChannels = 0;
    QString m_detectorRecordLocation;
    QString m_detectorBaseResource;
    unsigned int m_minCoverage = 0; // percent
    bool m_autoRecording = false;
    bool m_detectorPreset; // state of the detector box for the next type that has detectors
    bool m_preClassifier = false;
    QStringList m_allowedStartupModes; // empty: no limit
    QMap<QString, BaseResources> m_descriptionsByType;

    // The fields are children of the dialog; null where they are not offered.
    QComboBox* m_tunerTypeBox = nullptr;
    QComboBox* m_baseResourceBox = nullptr;
    QLineEdit* m_tunerNameEdit = nullptr;
    QComboBox* m_recordLocationBox = nullptr;
    QListWidget* m_startupModeList = nullptr;
    QCheckBox* m_preClassifierBox = nullptr;
    QCheckBox* m_detectorBox = nullptr;
    QComboBox* m_detectorTypeBox = nullptr;
    QCheckBox* m_productionBox = nullptr;
    QCheckBox* m_autoSeparationBox = nullptr;
    QCheckBox* m_filterSeparationBox = nullptr;
    QCheckBox* m_onlineRecombinationBox = nullptr;
    QComboBox* m_detectorRecordLocationBox = nullptr;
    QSpinBox* m_dscChannelsBox = nullptr;
    QComboBox* m_detectorBaseResourceBox = nullptr;
    QSpinBox* m_minCoverageBox = nullptr;
    QCheckBox* m_autoRecordingBox = nullptr;
    QPushButton* m_okButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QHash<const QWidget*, QLabel*> m_labels; // by field
};

} // namespace JEDVEPLUGIN
