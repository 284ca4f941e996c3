#include "jedcommonhelper.h"

#include "common/textfile_p.h"
#include "common/tracing_p.h"

#include <values/node.h>
#include <values/value.h>

#include <memory>

namespace JEDVEPLUGIN {

namespace {

using XmlJobType = JobXml::JobInformation::JobType;
using StartupMode = JobXml::Subjob::StartupMode;

struct JobTypeRow
{
    JEDVE::enJOB_TYPE type;
    XmlJobType xmlType;
    QLatin1String name;
};
const JobTypeRow JOB_TYPES[] = {
    {JEDVE::JOB_TYPE_PRODUCTION, JobXml::JobInformation::JOBTYPE_PRODUCTION, QLatin1String("Production")},
    {JEDVE::JOB_TYPE_SEARCH, JobXml::JobInformation::JOBTYPE_SEARCH, QLatin1String("Search")},
    {JEDVE::JOB_TYPE_SURVEILLANCE, JobXml::JobInformation::JOBTYPE_SURVEILLANCE,
     QLatin1String("Surveillance")},
    {JEDVE::JOB_TYPE_DF_SCAN, JobXml::JobInformation::JOBTYPE_DFSCAN, QLatin1String("DFScan")},
    {JEDVE::JOB_TYPE_MEASUREMENT, JobXml::JobInformation::JOBTYPE_MEASUREMENT, QLatin1String("Measurement")},
};

template <typename Field, typename Key>
const JobTypeRow* findRow(Field JobTypeRow::*field, const Key& key)
{
    for (const JobTypeRow& row : JOB_TYPES) {
        if (row.*field == key)
            return &row;
    }
    return nullptr;
}

const XmlJobType XML_JOB_TYPE_UNKNOWN = static_cast<XmlJobType>(-1);

const QLatin1Char KEY_SEPARATOR('@');
const QLatin1Char SIZE_SEPARATOR('x');

// The job file's mode with this number is the one of surveillance jobs, whatever its name.
const StartupMode SURVEILLANCE_MODE = static_cast<StartupMode>(3);

const QStringList& startupModeNames()
{
    static const QStringList names = JobXml::Subjob::GetStartupModes();
    return names;
}

const QStringList& startupModeTexts()
{
    static const QStringList texts = JobXml::Subjob::GetGUIStartupModes();
    return texts;
}

// The entry of one list at the place where the other one holds the text.
QString counterpart(const QString& text, const QStringList& from, const QStringList& to)
{
    const int place = from.indexOf(text);
    return place < 0 ? text : to.value(place, text);
}

// Unlike QString::toInt() alone, blanks around the number do not pass.
int strictNumber(const QString& text)
{
    return text == text.trimmed() ? text.toInt() : 0;
}

} // namespace

JEDVE::enJOB_TYPE JEDCommonHelper::StringToJobType(const QString& s)
{
    const JobTypeRow* row = findRow(&JobTypeRow::name, s);
    return row ? row->type : JEDVE::JOB_TYPE_UNKNOWN;
}

QString JEDCommonHelper::JobTypeToString(const JEDVE::enJOB_TYPE& t)
{
    const JobTypeRow* row = findRow(&JobTypeRow::type, t);
    return row ? QString(row->name) : QString();
}

JEDVE::enJOB_TYPE JEDCommonHelper::jobXmlTypeToJobType(const JobXml::JobInformation::JobType& t)
{
    const JobTypeRow* row = findRow(&JobTypeRow::xmlType, t);
    return row ? row->type : JEDVE::JOB_TYPE_UNKNOWN;
}

JobXml::JobInformation::JobType JEDCommonHelper::JobTypeToJobXmlType(const JEDVE::enJOB_TYPE& t)
{
    const JobTypeRow* row = findRow(&JobTypeRow::type, t);
    return row ? row->xmlType : XML_JOB_TYPE_UNKNOWN;
}

QString JEDCommonHelper::createSettingHashKey(const QString& first, const QString& second)
{
    return first + KEY_SEPARATOR + second;
}

void JEDCommonHelper::parseSettingHashKey(const QString& key, QString& first, QString& second)
{
    const QStringList parts = key.split(KEY_SEPARATOR);
    first = parts.value(0);
    second = parts.value(1, QLatin1String(""));
}

QSize JEDCommonHelper::parseSizeString(const QString& s)
{
    const QStringList parts = s.split(SIZE_SEPARATOR, Qt::SkipEmptyParts);
    if (parts.size() != 2)
        return QSize(-1, -1);
    const QSize size(strictNumber(parts.at(0)), strictNumber(parts.at(1)));
    return size.width() >= 1 && size.height() >= 1 ? size : QSize(-1, -1);
}

QVector<JobXml::Subjob::StartupMode> JEDCommonHelper::allowedStartupModes(const JEDVE::enJOB_TYPE& t)
{
    if (t == JEDVE::JOB_TYPE_SURVEILLANCE)
        return {SURVEILLANCE_MODE};
    return {};
}

QStringList JEDCommonHelper::allowedStartupModeString(const JEDVE::enJOB_TYPE& t)
{
    QStringList names;
    for (const StartupMode mode : allowedStartupModes(t))
        names << startupModeNames().value(mode);
    return names;
}

QStringList JEDCommonHelper::restrictedStartupModes(const QStringList& modes, const QStringList& allowed)
{
    if (allowed.isEmpty())
        return modes;
    QStringList restricted;
    for (const QString& mode : modes) {
        if (allowed.contains(mode))
            restricted << mode;
    }
    return restricted;
}

QString JEDCommonHelper::startupModeToGUI(const QString& mode)
{
    return counterpart(mode, startupModeNames(), startupModeTexts());
}

QString JEDCommonHelper::startupModeFromGUI(const QString& text)
{
    return counterpart(text, startupModeTexts(), startupModeNames());
}

QStringList JEDCommonHelper::startupModesToGUI(const QStringList& modes)
{
    QStringList texts;
    for (const QString& mode : modes)
        texts << startupModeToGUI(mode);
    return texts;
}

void JEDCommonHelper::createPGXMLVTElement(Node* parent, const QString& fileName)
{
    if (const auto text = readTextFile(fileName))
        createPGXMLVTElementFromString(parent, *text);
    else
        traceError(TracePoints::CANNOT_OPEN_PGXML_FILE,
                   QStringLiteral("cannot open PGXML file: %1").arg(fileName));
}

void JEDCommonHelper::createPGXMLVTElementFromString(Node* parent, const QString& text)
{
    if (!parent)
        return;
    auto value = std::make_unique<
        Value<QString, FormatString<QString>, StreamFormat<QString, FormatString<QString>>>>();
    value->SetName(QStringLiteral("PGXML"));
    value->SetValue(text);
    if (parent->AddChild(value.get(), QString()))
        value.release();
}

} // namespace JEDVEPLUGIN
