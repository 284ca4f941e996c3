#pragma once

#include "enjobtype.h"
#include "jedvepb_export.h"

#include <jobxml/job.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class Node;
class QXmlStreamReader;
class QXmlStreamWriter;

namespace VelmoGui {
class IGuiComponent;
}

namespace JEDVEPLUGIN {

/// What factories, plug-ins and dialogs have to agree upon: the job types and their names, the keys under
/// which settings are stored, the start-up modes that a job type allows; GUI components by name, copying of
/// XML, spectral detector profiles. Static functions only. Texts are compared as they stand: case and blanks
/// count. GUI thread only.
class JEDVEPB_EXPORT JEDCommonHelper
{
public:
    /// "Production", "Search", "Surveillance", "DFScan" or "Measurement"; -1 for any other text.
    static JEDVE::enJOB_TYPE StringToJobType(const QString& s);
    /// The reverse; a null string for any other value.
    static QString JobTypeToString(const JEDVE::enJOB_TYPE& t);
    /// From the job file's numbers to the editor's; -1 for a value that neither has.
    static JEDVE::enJOB_TYPE jobXmlTypeToJobType(const JobXml::JobInformation::JobType& t);
    /// The reverse.
    static JobXml::JobInformation::JobType JobTypeToJobXmlType(const JEDVE::enJOB_TYPE& t);

    /// One key of two parts, joined by "@". Nothing escapes an "@" inside a part.
    static QString createSettingHashKey(const QString& first, const QString& second);
    /// The parts of a key up to the first and from there to the second "@"; what follows is dropped. Without
    /// an "@" the whole key is the first part and the second is empty.
    static void parseSettingHashKey(const QString& key, QString& first, QString& second);

    /// A size written as width, "x" and height in decimal digits, both at least 1. Several "x" in a row count
    /// as one. Anything else, a blank too, gives the invalid size (-1, -1).
    static QSize parseSizeString(const QString& s);

    /// The start-up modes to which sub-jobs of a job of that type are limited; empty: there is no limit.
    static QVector<JobXml::Subjob::StartupMode> allowedStartupModes(const JEDVE::enJOB_TYPE& t);
    /// The same as names in the job file.
    static QStringList allowedStartupModeString(const JEDVE::enJOB_TYPE& t);
    /// The entries of \p modes that \p allowed contains, in their order and as often as they occur; all of
    /// them if \p allowed is empty.
    static QStringList restrictedStartupModes(const QStringList& modes, const QStringList& allowed);
    /// From the name in the job file to the text for the user; another text is returned as it is.
    static QString startupModeToGUI(const QString& mode);
    /// The reverse.
    static QString startupModeFromGUI(const QString& text);
    /// startupModeToGUI() of each entry.
    static QStringList startupModesToGUI(const QStringList& modes);

    /// Gives \p parent a text value "PGXML" that holds the content of a file in UTF-8. A file that cannot be
    /// read is traced and adds nothing.
    /// \param parent  owns the value; with null nothing is added
    static void createPGXMLVTElement(Node* parent, const QString& fileName);
    /// The same with the text itself.
    static void createPGXMLVTElementFromString(Node* parent, const QString& text);

    /// Whether jobs of that type have detectors: all but surveillance, unknown types too.
    static bool supportsDetector(const JEDVE::enJOB_TYPE& jobType);
    /// Whether a kind of resource offers a kind of detector. False, as all questions below, for a kind that is
    /// not known, and for a name that is none.
    static bool supportsDetectorType(const JobXml::ResourceDescription::Type& resource,
                                     const JobXml::Detector::Type& detector);
    /// Whether the detector can use a channel for digital selective calling.
    static bool supportsDSCChannel(const JobXml::ResourceDescription::Type& resource,
                                   const JobXml::Detector::Type& detector);
    /// Whether scan channels can work by themselves.
    static bool supportsAutonomousSCPs(const JobXml::ResourceDescription::Type& resource);
    /// The same by the name in the job file.
    static bool supportsAutonomousSCPs(const QString& resource);
    static bool supportsAutonomousSCPs(const JobXml::Detector::Type& detector);
    /// Whether the detector uses a base resource of its own.
    static bool supportsDetectorBaseResource(const JobXml::Detector::Type& detector);
    static bool supportsProduction(const JobXml::Detector::Type& detector);
    static bool supportsDetectorProcessingSettings(const JobXml::Detector::Type& detector);
    static bool supportsMinCoverage(const JobXml::Detector::Type& detector);
    static bool supportsAutoRecording(const JobXml::Detector::Type& detector);
    /// Whether it can be chosen where a resource records.
    static bool providesRecordLocation(const JobXml::ResourceDescription::Type& resource);
    /// The same by the name in the job file.
    static bool providesRecordLocation(const QString& resource);

    /// The texts for the user of the detectors that a kind of resource offers, usual one first; those for which
    /// supportsDetectorType() is true.
    static QStringList getAvailableDetectorTypes(const JobXml::ResourceDescription::Type& resource);
    /// The same by the name in the job file.
    static QStringList getAvailableDetectorTypes(const QString& resource);
    /// The texts for the user of the places where a kind of resource can record; empty if it cannot be chosen.
    static QStringList getAvailableGUIRecordLocations(const JobXml::ResourceDescription::Type& resource);
    /// The same by the name in the job file.
    static QStringList getAvailableGUIRecordLocations(const QString& resource);
    /// The place that is chosen to begin with, a null string if there is no choice.
    static QString getDefaultGUIRecordLocation(const JobXml::ResourceDescription::Type& resource);
    /// The same by the name in the job file.
    static QString getDefaultGUIRecordLocation(const QString& resource);
    /// From the name in the job file; -1 for another text.
    static JobXml::ResourceDescription::RecordLocation getRecordLocation(const QString& name);
    /// From the name in the job file; -1 for another text.
    static JobXml::Detector::RecordLocation getDetectorRecordLocation(const QString& name);
    /// From the name in the job file to the text for the user; another text is returned as it is.
    static QString detectorTypeToGUI(const QString& name);
    /// The reverse.
    static QString detectorTypeFromGUI(const QString& text);
    /// Sorts kinds of resources in the order in which they are offered; unknown ones come last.
    static void sortResourceTypes(QList<JobXml::ResourceDescription::Type>& resources);
    /// The same by the names in the job file.
    static void sortResourceTypes(QStringList& resources);

    /// The GUI component that a component library makes. The library stays loaded until the process ends.
    /// \param name              of the library, without folder and ending ("ScanSettingsComponent")
    /// \param forceNewInstance  false: the one that was made before, if there is one
    /// \return to be released with unloadComponent(); null if there is no such library or it cannot be used,
    ///         which is traced
    static VelmoGui::IGuiComponent* loadComponent(const QString& name, bool forceNewInstance);
    /// Deletes a component; whoever else got the same one must not use it any more. Null and strangers are
    /// ignored.
    static void unloadComponent(VelmoGui::IGuiComponent* component);

    /// Copies elements with their attributes and texts from the reader's present token on, up to and with the
    /// end tag of the element around them, on which the reader is left. Blank texts, comments and processing
    /// instructions are dropped. For the content of an element: read one token past its start tag first.
    static void CopyXml(QXmlStreamReader& reader, QXmlStreamWriter& writer);

    /// The shapes that every spectral detector profile offers; none for an empty profile.
    static QStringList getGenericShapes(const QByteArray& profile);
    /// The shapes of a spectral detector profile, in its order. Empty, and traced, if it cannot be read. The ten
    /// profiles asked for last are remembered.
    /// \param profile  content of the profile file
    static QStringList getProfileShapes(const QByteArray& profile);
    /// The same with the parameters of each shape, as XML text.
    static QMap<QString, QString> getProfileShapesAndParameter(const QByteArray& profile);
    /// Whether a shape's parameters, as XML text, hold anything below the root element.
    static bool isShapeParameterProducable(const QString& xml);

private:
    static bool compResourceTypes(const JobXml::ResourceDescription::Type& a,
                                  const JobXml::ResourceDescription::Type& b);
    static bool compResourceTypesS(const QString& a, const QString& b);
    static QHash<JobXml::ResourceDescription::Type, int> createResTypeHash();

    static const JobXml::ResourceDescription s_ResDescConversionObject; // By which names are converted.
    static const JobXml::Detector s_DetectorConversionObject;           // As above.
    static const QHash<JobXml::ResourceDescription::Type, int> s_compResTypeHash; // Ranks, the highest first.
};

} // namespace JEDVEPLUGIN
