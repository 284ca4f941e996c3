#pragma once

#include <jobxml/parametersettext.h>
#include <jobxml/tunerproperties.h>
#include <reportlayer/fieldaccess.h>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QVector>

namespace JedTest {

/// Folder of the example station, or a folder in it.
inline QDir stationFolder(const QString& name = QString())
{
    return QDir(QStringLiteral(JED_SOURCE_DIR "/installation/") + name);
}

/// The whole text of a file; empty if it cannot be read.
inline QString textOfFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

struct TunerFile
{
    QString name;
    QString text;
    JobXml::TunerProperties content;
};

/// All tuner property files of the station, by name.
inline const QVector<TunerFile>& tunerFiles()
{
    static const QVector<TunerFile> files = [] {
        QVector<TunerFile> result;
        const QDir folder = stationFolder(QStringLiteral("TemplateFolder"));
        const QStringList names = folder.entryList(QDir::Files);
        for (const QString& name : names) {
            TunerFile file{name, textOfFile(folder.filePath(name)), {}};
            file.content.SetXmlString(file.text, true);
            result.append(file);
        }
        return result;
    }();
    return files;
}

/// One value item of a file, with what tells about it whatever its kind.
struct TunerItem
{
    QString component;
    QString set;
    QString kind;                              // "ValueNumericInt64"
    const REPORTGENERATOR::IRGObject* element; // of that kind, not owned

    QString text(const char* field) const
    {
        return REPORTGENERATOR::fieldText(*element, QLatin1String(field));
    }
    QString id() const { return text("id"); }
    /// Set, path and file for messages.
    QString where(const TunerFile& file) const { return file.name + ": " + set + "/" + id(); }
    bool isNumeric() const { return kind.startsWith(QLatin1String("ValueNumeric")); }
    const REPORTGENERATOR::Field* field() const { return JobXml::ParameterSetText::field(set, id()); }
};

/// The value items of a file in file order. Refers to the file.
inline QVector<TunerItem> itemsOf(const TunerFile& file)
{
    QVector<TunerItem> result;
    for (const JobXml::Component& component : file.content.GetComponent()) {
        for (const JobXml::Node& node : component.GetNode()) {
            for (const JobXml::ValueItem& item : node.GetValueItem()) {
                const QString kind = JobXml::ValueItem::ChoiceValueItemToName(item.GetChoiceValueItem());
                result.append(
                    {component.Getname(), node.Getid(), kind, REPORTGENERATOR::childElement(item, kind)});
            }
        }
    }
    return result;
}

} // namespace JedTest
