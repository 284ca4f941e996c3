#pragma once

#include <quilappstartup/quilappstartup_export.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>

class QObject;

/// Why a shared library is used or not. Each has a row in the one table of texts.
enum TLibraryVerdict : int {
    LIBRARY_ACCEPTED = 0,
    LIBRARY_NO_PLAIN_NAME,        ///< the name asked for has a folder in it
    LIBRARY_MISSING,              ///< in none of the folders
    LIBRARY_DANGLING_LINK,        ///< a link to nothing
    LIBRARY_NO_FILE,              ///< a folder, a pipe, a device
    LIBRARY_UNREADABLE,           ///< does not open
    LIBRARY_EMPTY,                ///< no bytes at all
    LIBRARY_NO_LIBRARY,           ///< some other kind of file
    LIBRARY_OTHER_MACHINE,        ///< built for another processor
    LIBRARY_TRUNCATED,            ///< shorter than its own header says
    LIBRARY_NO_METADATA,          ///< a shared library, but none with plug-in metadata
    LIBRARY_OTHER_INTERFACE,      ///< a plug-in of something else
    LIBRARY_NO_VERSION,           ///< its metadata name no interface version
    LIBRARY_OLDER_INTERFACE,      ///< built for an older interface version than this program's
    LIBRARY_NEWER_INTERFACE,      ///< built for a newer one
    LIBRARY_NOT_LOADED,           ///< the system's loader refuses, because of a missing symbol for instance
    LIBRARY_NO_FACTORY,           ///< its plug-in object is not what it should be
    LIBRARY_FACTORY_FAILED,       ///< its factory threw something
    LIBRARY_FACTORY_GAVE_NOTHING, ///< its factory made nothing
};

/// A kind of shared libraries: what such a library has to declare in its plug-in metadata.
struct LibraryKind
{
    QString noun;             ///< for the texts: "component", "plug-in"
    QString interfaceId;      ///< the IID of Q_PLUGIN_METADATA
    int interfaceVersion = 0; ///< the "interfaceVersion" that this program works with
};

/// What is known of one shared library.
struct LibraryReport
{
    TLibraryVerdict verdict = LIBRARY_ACCEPTED;
    QString path;             ///< of the file, or the name asked for if there is none
    QString text;             ///< for the user: what is wrong, then what to do about it
    QString interfaceId;      ///< as declared; empty if the metadata could not be read
    int interfaceVersion = 0; ///< as declared; 0 if none is
    QJsonObject metaData;     ///< the library's own metadata, from the file named in Q_PLUGIN_METADATA

    bool isAccepted() const { return verdict == LIBRARY_ACCEPTED; }
};

/// Called with the plug-in object of a library that has just been loaded: makes what is needed of it. May
/// throw. \return LIBRARY_ACCEPTED, LIBRARY_NO_FACTORY or LIBRARY_FACTORY_GAVE_NOTHING
using LibraryUse = std::function<TLibraryVerdict(QObject* plugin)>;

/// Looks at shared libraries before they are loaded, so that no file, whatever it holds, can end or block the
/// process: components and plug-ins alike. A library that has been loaded stays so until the process ends.
/// GUI thread only.
class QUILAPPSTARTUP_EXPORT LibraryExaminer
{
public:
    explicit LibraryExaminer(const LibraryKind& kind);

    /// The file name that the running system uses for a library: of "Name.dll" it makes "libName.so" here.
    /// Names with another ending stay as they are.
    static QString systemFileName(const QString& name);
    /// A short lower-case name for a verdict ("truncated"), for lists and machine-readable output.
    static QString verdictName(TLibraryVerdict verdict);

    /// Looks for a library in \p folders, in their order, and examines the first file of that name, no other.
    /// \param name  plain file name, as for systemFileName()
    LibraryReport find(const QString& name, const QStringList& folders) const;
    /// Examines a file without running any of its code: kind of file, header against size and machine,
    /// metadata.
    LibraryReport examine(const QString& path) const;
    /// Examines a file and, if it is accepted, loads it and calls \p use. What is thrown on the way becomes
    /// the verdict. Static constructors of the library run unguarded.
    LibraryReport load(const QString& path, const LibraryUse& use) const;

private:
    LibraryReport report(TLibraryVerdict verdict, const QString& path, const QString& detail = QString(),
                         const QString& expected = QString()) const;
    LibraryReport readMetaData(const QString& path) const;

    LibraryKind m_kind;
};
