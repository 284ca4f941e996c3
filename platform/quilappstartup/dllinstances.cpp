#include <quilappstartup/dllinstances_p.h>

#include <quilappstartup/idllinstance.h>
#include <quilappstartup/libraryexaminer.h>

#include <zubase/zuexception.h>

#include <algorithm>

namespace {

LibraryExaminer componentExaminer()
{
    return LibraryExaminer(
        {QStringLiteral("component"), QStringLiteral(IDllFactory_iid), JED_COMPONENT_INTERFACE_VERSION});
}

} // namespace

IDllInstance* DllInstances::create(const QString& fileName, const QString& instanceName,
                                   const QStringList& folders)
{
    const LibraryExaminer examiner = componentExaminer();
    IDllInstance* instance = nullptr;
    LibraryReport report = examiner.find(fileName, folders);
    if (report.isAccepted()) {
        report = examiner.load(report.path, [&instance, &instanceName](QObject* plugin) {
            auto* factory = qobject_cast<IDllFactory*>(plugin);
            if (factory == nullptr)
                return LIBRARY_NO_FACTORY;
            instance = factory->CreateInstance(instanceName);
            return instance != nullptr ? LIBRARY_ACCEPTED : LIBRARY_FACTORY_GAVE_NOTHING;
        });
    }
    if (!report.isAccepted())
        throw ZuException(report.text, QStringLiteral("CfgCenter"),
                          QStringLiteral("CreateDllInstanceByFileName"));
    m_entries.append({LibraryExaminer::systemFileName(fileName), instanceName, instance});
    return instance;
}

IDllInstance* DllInstances::find(const QString& fileName, const QString& instanceName) const
{
    const QString systemName = LibraryExaminer::systemFileName(fileName);
    for (const Entry& entry : m_entries) {
        if (entry.fileName == systemName && entry.instanceName == instanceName)
            return entry.instance;
    }
    return nullptr;
}

bool DllInstances::destroy(IDllInstance* instance)
{
    const auto isIt = [instance](const Entry& entry) { return entry.instance == instance; };
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(), isIt);
    if (entry == m_entries.end())
        return false;
    m_entries.erase(entry); // before the destructor, which may ask for instances itself
    delete instance;
    return true;
}
