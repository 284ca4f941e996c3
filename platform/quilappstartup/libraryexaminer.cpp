#include <quilappstartup/libraryexaminer.h>

#include <quilappstartup/libraryheader_p.h>

#include <zubase/zuexception.h>

#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

#include <exception>

namespace {

const QLatin1String WINDOWS_ENDING(".dll");
const QLatin1String VERSION_KEY("interfaceVersion");

/// Of a text, %1 is the file, %2 the noun, %3 what was found, %4 what is expected.
struct VerdictText
{
    TLibraryVerdict verdict;
    const char* name;
    const char* whatIsWrong;
    const char* whatToDo;
};

const VerdictText VERDICT_TEXTS[] = {
    {LIBRARY_ACCEPTED, "accepted", "%1: a %2 of interface version %3.", "Nothing needs to be done."},
    {LIBRARY_NO_PLAIN_NAME, "no plain name", "\"%1\" is not the plain file name of a %2.",
     "Name it without its folder (\"Name.dll\") and put the file into one of the folders for it."},
    {LIBRARY_MISSING, "missing", "%1: there is no such %2 in %3.",
     "Put the file there, or correct the folder in the installation's configuration."},
    {LIBRARY_DANGLING_LINK, "dangling link", "%1: a link to %3, which is not there.",
     "Remove the link, or put the file where it leads."},
    {LIBRARY_NO_FILE, "no file", "%1: %3, not a file.", "Take it out of the folder."},
    {LIBRARY_UNREADABLE, "unreadable", "%1: cannot be read: %3.", "Allow this user to read the file."},
    {LIBRARY_EMPTY, "empty", "%1: the file is empty.", "Copy it again from where it was built."},
    {LIBRARY_NO_LIBRARY, "no library", "%1: not a shared library.",
     "Take it out of the folder, or replace it by the %2 built for this system."},
    {LIBRARY_OTHER_MACHINE, "other machine", "%1: built for %3, but this program for %4.",
     "Replace it by the %2 built for this machine."},
    {LIBRARY_TRUNCATED, "truncated", "%1: cut off: it has %3 of at least %4 bytes.",
     "Copy it again from where it was built."},
    {LIBRARY_NO_METADATA, "no metadata", "%1: a shared library, but no %2: it has no plug-in metadata.",
     "Take it out of the folder; its author needs Q_PLUGIN_METADATA with IID \"%4\"."},
    {LIBRARY_OTHER_INTERFACE, "other interface", "%1: made for \"%3\", but a %2 is made for \"%4\".",
     "Take it out of the folder."},
    {LIBRARY_NO_VERSION, "no interface version", "%1: its metadata name no \"interfaceVersion\".",
     "Its author has to name it in the metadata file; this program works with version %4."},
    {LIBRARY_OLDER_INTERFACE, "older interface",
     "%1: built for interface version %3, but this program works with version %4.",
     "Install a newer release of the %2, or build it again with the headers of version %4."},
    {LIBRARY_NEWER_INTERFACE, "newer interface",
     "%1: built for interface version %3, but this program works with version %4.",
     "Update this program, or install an older release of the %2."},
    {LIBRARY_NOT_LOADED, "not loaded", "%1: the system cannot load it: %3.",
     "Install the libraries that it needs, in the versions that it was built with."},
    {LIBRARY_NO_FACTORY, "no factory", "%1: its plug-in object makes no %2.",
     "Tell its author: the object has to implement \"%4\" and name it in Q_INTERFACES."},
    {LIBRARY_FACTORY_FAILED, "factory failed", "%1: it gave up while making a %2: %3.",
     "Mend what the reason names, or tell its author."},
    {LIBRARY_FACTORY_GAVE_NOTHING, "factory gave nothing", "%1: it made no %2 and gave no reason.",
     "Tell its author."},
};

const VerdictText& textOf(TLibraryVerdict verdict)
{
    for (const VerdictText& row : VERDICT_TEXTS) {
        if (row.verdict == verdict)
            return row;
    }
    return VERDICT_TEXTS[0];
}

bool isPlainName(const QString& name)
{
    for (const char separator : {'/', '\\', ':', '\0'}) {
        if (name.contains(QLatin1Char(separator)))
            return false;
    }
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..");
}

QString listed(const QStringList& folders)
{
    return folders.isEmpty() ? QString("any folder, since none is configured") : folders.join(", ");
}

// The loader says "Cannot load library PATH: (REASON)"; only the reason is news.
QString reasonOf(const QString& loaderMessage)
{
    const int start = loaderMessage.indexOf(QLatin1String(": ("));
    const bool isWrapped = start >= 0 && loaderMessage.endsWith(QLatin1Char(')'));
    return isWrapped ? loaderMessage.mid(start + 3).chopped(1) : loaderMessage;
}

// As QString::arg(), but a text need not use every part.
QString filledIn(const QString& text, const QStringList& parts)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const int part = text.at(i) == QLatin1Char('%') ? text.mid(i + 1, 1).toInt() : 0;
        if (part == 0)
            result += text.at(i);
        else
            result += parts.value(part - 1);
        i += part == 0 ? 0 : 1;
    }
    return result;
}

} // namespace

LibraryExaminer::LibraryExaminer(const LibraryKind& kind)
    : m_kind(kind)
{
}

QString LibraryExaminer::systemFileName(const QString& name)
{
    if (!name.endsWith(WINDOWS_ENDING, Qt::CaseInsensitive))
        return name;
#if defined(Q_OS_WIN)
    return name;
#else
    const QString base = name.left(name.size() - WINDOWS_ENDING.size());
#if defined(Q_OS_MACOS)
    return QString("lib%1.dylib").arg(base);
#else
    return QString("lib%1.so").arg(base);
#endif
#endif
}

QString LibraryExaminer::verdictName(TLibraryVerdict verdict)
{
    return QLatin1String(textOf(verdict).name);
}

LibraryReport LibraryExaminer::find(const QString& name, const QStringList& folders) const
{
    if (!isPlainName(name))
        return report(LIBRARY_NO_PLAIN_NAME, name);
    for (const QString& folder : folders) {
        const QFileInfo info(QDir(folder), systemFileName(name));
        if (!folder.isEmpty() && (info.exists() || info.isSymLink()))
            return examine(info.filePath());
    }
    return report(LIBRARY_MISSING, systemFileName(name), listed(folders));
}

LibraryReport LibraryExaminer::examine(const QString& path) const
{
    const QFileInfo info(path);
    if (!info.exists() && info.isSymLink())
        return report(LIBRARY_DANGLING_LINK, path, info.symLinkTarget());
    if (!info.exists())
        return report(LIBRARY_MISSING, path, info.path());
    if (!info.isFile())
        return report(LIBRARY_NO_FILE, path, info.isDir() ? "a folder" : "a pipe, a socket or a device");
    if (info.size() == 0)
        return report(LIBRARY_EMPTY, path);
    const LibraryHeader header = readLibraryHeader(path);
    if (header.verdict != LIBRARY_ACCEPTED)
        return report(header.verdict, path, header.found, header.expected);
    return readMetaData(path);
}

LibraryReport LibraryExaminer::load(const QString& path, const LibraryUse& use) const
{
    LibraryReport examined = examine(path);
    if (!examined.isAccepted())
        return examined;
    QPluginLoader loader(path);
    // A missing function ends the process when it is called, unless all are looked up now.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!loader.load())
        return report(LIBRARY_NOT_LOADED, path, reasonOf(loader.errorString()));
    QString reason;
    try {
        QObject* plugin = loader.instance();
        const TLibraryVerdict verdict = plugin != nullptr ? use(plugin) : LIBRARY_NO_FACTORY;
        return verdict == LIBRARY_ACCEPTED ? examined : report(verdict, path, QString(), m_kind.interfaceId);
    } catch (const ZuException& failure) {
        reason = failure.GetErrorReason();
    } catch (const std::exception& failure) {
        reason = QString::fromUtf8(failure.what());
    } catch (...) {
        reason = QLatin1String("an unknown exception");
    }
    return report(LIBRARY_FACTORY_FAILED, path, reason);
}

LibraryReport LibraryExaminer::report(TLibraryVerdict verdict, const QString& path, const QString& detail,
                                      const QString& expected) const
{
    const VerdictText& row = textOf(verdict);
    const QString text = QString("%1 %2").arg(QLatin1String(row.whatIsWrong), QLatin1String(row.whatToDo));
    LibraryReport result;
    result.verdict = verdict;
    result.path = path;
    result.text = filledIn(text, {path, m_kind.noun, detail, expected});
    return result;
}

LibraryReport LibraryExaminer::readMetaData(const QString& path) const
{
    const QJsonObject outer = QPluginLoader(path).metaData(); // reads the file, loads nothing
    const QString interfaceId = outer.value(QLatin1String("IID")).toString();
    const QJsonObject metaData = outer.value(QLatin1String("MetaData")).toObject();
    const bool hasVersion = metaData.value(VERSION_KEY).isDouble();
    const int version = metaData.value(VERSION_KEY).toInt();
    const QString wanted = QString::number(m_kind.interfaceVersion);
    LibraryReport result;
    if (interfaceId.isEmpty())
        result = report(LIBRARY_NO_METADATA, path, QString(), m_kind.interfaceId);
    else if (interfaceId != m_kind.interfaceId)
        result = report(LIBRARY_OTHER_INTERFACE, path, interfaceId, m_kind.interfaceId);
    else if (!hasVersion)
        result = report(LIBRARY_NO_VERSION, path, QString(), wanted);
    else if (version != m_kind.interfaceVersion)
        result = report(version < m_kind.interfaceVersion ? LIBRARY_OLDER_INTERFACE : LIBRARY_NEWER_INTERFACE,
                        path, QString::number(version), wanted);
    else
        result = report(LIBRARY_ACCEPTED, path, QString::number(version));
    result.interfaceId = interfaceId;
    result.interfaceVersion = version;
    result.metaData = metaData;
    return result;
}
