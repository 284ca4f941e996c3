#pragma once

#include <quilappstartup/quilappstartup_export.h>

#include <QHash>
#include <QString>
#include <QStringList>

/// One configuration: the keys of one section of an installation. Read-only; made and owned by the CfgCenter.
/// GUI thread only.
class QUILAPPSTARTUP_EXPORT Cfg
{
public:
    /// \param entries  keys and their texts, paths made absolute already
    Cfg(const QString& name, const QHash<QString, QString>& entries)
        : m_name(name)
        , m_entries(entries)
    {
    }

    /// The section's name.
    QString GetName() const { return m_name; }
    bool HasKey(const QString& key) const { return m_entries.contains(key); }
    /// In alphabetical order.
    QStringList GetKeys() const;

    /// The text of \p key, upper and lower case being different; \p defaultText if there is no such key. A
    /// key that is there but empty is empty.
    QString GetString(const QString& key, const QString& defaultText = QString()) const
    {
        return m_entries.value(key, defaultText);
    }

private:
    QString m_name;
    QHash<QString, QString> m_entries;
};
