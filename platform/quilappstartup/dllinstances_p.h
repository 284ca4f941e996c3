#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class IDllInstance;

/// The living instances of component libraries.
class DllInstances
{
public:
    /// Throws ZuException with the reason if there is no such library, or none that can be used.
    IDllInstance* create(const QString& fileName, const QString& instanceName, const QStringList& folders);
    /// The oldest of that library and name, null if there is none.
    IDllInstance* find(const QString& fileName, const QString& instanceName) const;
    /// \return false for null and for what was not made here
    bool destroy(IDllInstance* instance);

private:
    struct Entry
    {
        QString fileName; // In the running system's naming.
        QString instanceName;
        IDllInstance* instance; // Owned until destroyed.
    };

    QVector<Entry> m_entries; // In order of making.
};
