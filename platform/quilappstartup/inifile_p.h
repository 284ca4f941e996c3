#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

/// A file of [sections] and key=value lines in UTF-8. Blanks around names, keys and values do not count, and
/// nothing else is special about a value: backslashes and quotes stand for themselves. Lines that begin with
/// ";" or "#" are comments. A section may be continued further down; of two lines with one key the later one
/// counts.
class IniFile
{
public:
    using Entries = QHash<QString, QString>;

    /// Files above this size are no configuration.
    static constexpr qint64 MAX_SIZE = 1024 * 1024; // bytes

    /// Holds nothing.
    IniFile() = default;
    /// What could not be read is left out and told by problems().
    explicit IniFile(const QString& path);

    bool hasSection(const QString& name) const { return m_sections.contains(name); }
    Entries section(const QString& name) const { return m_sections.value(name); }
    /// One text for each line that makes no sense ("name.ini:12: …"), or one that says why nothing was read.
    QStringList problems() const { return m_problems; }

private:
    void readText(const QString& text, const QString& fileName);

    QMap<QString, Entries> m_sections;
    QStringList m_problems;
};
