#pragma once

#include "enjobtype.h"
#include "jedvepb_export.h"

#include <jobxml/job.h>

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class Node;

namespace JEDVEPLUGIN {

/// What factories, plug-ins and dialogs have to agree upon: the job types and their names, the keys under which
/// settings are stored, the start-up modes that a job type allows. Static functions only. Texts are compared as
/// they stand: case and blanks count.
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
    /// The parts of a key up to the first and from there to the second "@"; what follows is dropped. Without an
    /// "@" the whole key is the first part and the second is empty.
    static void parseSettingHashKey(const QString& key, QString& first, QString& second);

    /// A size written as width, "x" and height in decimal digits, both at least 1. Several "x" in a row count as
    /// one. Anything else, a blank too, gives the invalid size (-1, -1).
    static QSize parseSizeString(const QString& s);

    /// The start-up modes to which sub-jobs of a job of that type are limited; empty: there is no limit.
    static QVector<JobXml::Subjob::StartupMode> allowedStartupModes(const JEDVE::enJOB_TYPE& t);
    /// The same as names in the job file.
    static QStringList allowedStartupModeString(const JEDVE::enJOB_TYPE& t);
    /// The entries of \p modes that \p allowed contains, in their order and as often as they occur; all of them
    /// if \p allowed is empty.
    static QStringList restrictedStartupModes(const QStringList& modes, const QStringList& allowed);
    /// From the name in the job file to the text for the user; another text is returned as it is.
    static QString startupModeToGUI(const QString& mode);
    /// The reverse.
    static QString startupModeFromGUI(const QString& text);
    /// startupModeToGUI() of each entry.
    static QStringList startupModesToGUI(const QStringList& modes);

    /// Gives \p parent a text value "PGXML" that holds the content of a file in UTF-8. A file that cannot be read
    /// is traced and adds nothing.
    /// \param parent  owns the value; with null nothing is added
    static void createPGXMLVTElement(Node* parent, const QString& fileName);
    /// The same with the text itself.
    static void createPGXMLVTElementFromString(Node* parent, const QString& text);
};

} // namespace JEDVEPLUGIN
