#include "sessionrunner.h"

#include "fieldplaces.h"
#include "listpreview.h"

#include <isubsetting.h>
#include <jedcommonhelper.h>
#include <jedsubsettingfactory.h>
#include <jobxml/parametersettext.h>
#include <jobxml/quantity.h>
#include <jobxml/settings.h>
#include <jobxml/suggestion.h>
#include <jobxml/valuetext.h>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>
#include <reportlayer/fieldaccess.h>
#include <resourcedescription.h>

using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::ResourceDescription;

namespace Session {

namespace {
constexpr double MAX_WAIT = 24 * 60 * 60; // s

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Session::SessionRunner)
};

// What a person writes, as files have it: numbers without units, names instead of the texts that users are shown.
QString fileText(const REPORTGENERATOR::Field& field, const QString& text)
{
    if (field.enumeration) {
        const int position = field.enumeration->allGuiTexts().indexOf(text);
        return position < 0 ? text : field.enumeration->name(position);
    }
    qint64 whole = 0;
    double number = 0;
    if (field.isNumber() && JobXml::parseWholeQuantity(text, field.unit(), &whole))
        return QString::number(whole);
    if (field.isNumber() && JobXml::parseQuantity(text, field.unit(), &number))
        return QString::number(number, 'g', 15);
    return text;
}

std::unique_ptr<REPORTGENERATOR::IRGObject> elementOf(const QString& set, const QString& xml)
{
    const REPORTGENERATOR::ParameterSet* const found = JobXml::findParameterSet(set);
    if (!found)
        return nullptr;
    std::unique_ptr<REPORTGENERATOR::IRGObject> element(found->table->create());
    element->SetXmlString(xml, false);
    return element;
}

JobXml::Subjob subjobOn(const ResourceDescription& resource, const QString& mode)
{
    JobXml::Subjob subjob;
    subjob.SetName(resource.getName());
    subjob.SetStartupMode(JobXml::Subjob::NameToStartupMode(mode));
    JobXml::ResourceDescription& description = subjob.GetResourceDescription();
    description.SetType(JobXml::ResourceDescription::NameToType(resource.getType()));
    description.SetBaseResource(resource.getBaseResource());
    description.SetName(resource.getName());
    return subjob;
}

QString chooseStartupMode(const ResourceDescription& resource, JEDVE::enJOB_TYPE type, const QString& wanted)
{
    const QStringList modes = JEDCommonHelper::restrictedStartupModes(
        resource.getStartupModes(), JEDCommonHelper::allowedStartupModeString(type));
    return wanted.isEmpty() ? modes.value(0) : modes.contains(wanted) ? wanted : QString();
}
} // namespace

SessionRunner::Artist::~Artist() = default;

bool SessionRunner::Artist::drawImport(JobSession::Setting*, const QString&, const QString&)
{
    return false;
}

bool SessionRunner::Artist::drawWindow(const QString&, JobSession::Setting*, const QString&)
{
    return false;
}

SessionRunner::SessionRunner(JobSession* session, Artist* artist)
    : m_session(session)
    , m_artist(artist)
{
}

bool SessionRunner::run(const Scenario& scenario)
{
    m_place = scenario.name();
    for (const Scenario::Step& step : scenario.steps()) {
        if (!runStep(step))
            return false;
    }
    return true;
}

bool SessionRunner::runStep(const Scenario::Step& step)
{
    struct Action
    {
        QLatin1String verb;
        bool (SessionRunner::*run)(const QStringList& arguments);
    };
    static const Action ACTIONS[] = {
        {QLatin1String("new"), &SessionRunner::begin},
        {QLatin1String("open"), &SessionRunner::open},
        {QLatin1String("add"), &SessionRunner::add},
        {QLatin1String("set"), &SessionRunner::set},
        {QLatin1String("select"), &SessionRunner::select},
        {QLatin1String("expect"), &SessionRunner::expect},
        {QLatin1String("import"), &SessionRunner::import},
        {QLatin1String("save"), &SessionRunner::save},
        {QLatin1String("picture"), &SessionRunner::picture},
        {QLatin1String("dialog"), &SessionRunner::dialog},
        {QLatin1String("dock"), &SessionRunner::dock},
        {QLatin1String("map"), &SessionRunner::map},
        {QLatin1String("preview"), &SessionRunner::previewImport},
        {QLatin1String("window"), &SessionRunner::window},
        {QLatin1String("wait"), &SessionRunner::wait},
    };
    m_line = step.line;
    for (const Action& action : ACTIONS) {
        if (step.verb == action.verb)
            return (this->*action.run)(step.arguments);
    }
    return refuse(Texts::tr("\"%1\" is no verb of a scenario").arg(step.verb));
}

bool SessionRunner::begin(const QStringList& arguments)
{
    const JEDVE::enJOB_TYPE type = JEDCommonHelper::StringToJobType(arguments.value(0));
    if (type < 0)
        return refuse(Texts::tr("there is no type of job \"%1\"").arg(arguments.value(0)));
    m_session->begin(type, arguments.value(1, arguments.value(0)));
    m_current = -1;
    m_shown = nullptr;
    return true;
}

bool SessionRunner::open(const QStringList& arguments)
{
    const QString path = besideScenario(arguments.value(0));
    if (!m_session->open(path, &m_findings))
        return false;
    m_current = m_session->topLevelCount() > 0 ? 0 : -1;
    m_shown = m_session->settingAt({m_current});
    return true;
}

bool SessionRunner::add(const QStringList& arguments)
{
    const QString wanted = arguments.value(0);
    QStringList keys;
    for (const auto& resource : ResourceDescription::readAllResourceFiles()) {
        keys.append(resource->getType() + QLatin1Char('/') + resource->getBaseResource());
        if (keys.last() != wanted)
            continue;
        const QString mode = chooseStartupMode(*resource, m_session->jobType(), arguments.value(1));
        if (mode.isEmpty())
            return refuse(
                Texts::tr("%1 does not offer such a start-up mode for this kind of job").arg(wanted));
        m_shown = m_session->addSubjob(subjobOn(*resource, mode));
        m_current = m_session->topLevelIndex(m_shown);
        return m_shown ||
               refuse(Texts::tr("no plug-in takes a sub-job on %1 in this kind of job").arg(wanted));
    }
    return refuse(Texts::tr("the installation offers no \"%1\"").arg(wanted),
                  JobXml::suggestion(wanted, keys));
}

bool SessionRunner::set(const QStringList& arguments)
{
    const QString path = arguments.value(0);
    const QString setName = path.section(QLatin1Char('/'), 0, 0);
    const QString fieldPath = path.section(QLatin1Char('/'), 1);
    JobSession::Setting* const setting = carrierOf(setName);
    if (!setting)
        return refuse(Texts::tr("the sub-job cannot have \"%1\"").arg(setName));
    m_shown = setting;
    m_session->endEditStep();
    // As an operator does it, whom rules follow.
    ValueBase* const value = setting->isReadOnly() ? nullptr : fieldValue(setting, setName, fieldPath);
    if (!value)
        return setInText(setting, setName, fieldPath, arguments.value(1));
    QString reason;
    if (!JobXml::assignText(value, JobXml::ParameterSetText::field(setName, fieldPath), arguments.value(1),
                            &reason))
        return refuse(QStringLiteral("%1: %2").arg(path, reason));
    m_session->flushEdits();
    return true;
}

bool SessionRunner::setInText(JobSession::Setting* setting, const QString& parameterSet,
                              const QString& fieldPath, const QString& text)
{
    const auto element = elementOf(parameterSet, setting->parameterSetText(parameterSet));
    const REPORTGENERATOR::Field* const field =
        element ? REPORTGENERATOR::findField(element->table(), fieldPath) : nullptr;
    if (!field)
        return refuse(Texts::tr("%1 has no field \"%2\"").arg(parameterSet, fieldPath),
                      element
                          ? JobXml::suggestion(fieldPath, JobXml::ParameterSetText::fieldPaths(parameterSet))
                          : QString());
    return (REPORTGENERATOR::setFieldText(*element, fieldPath, fileText(*field, text)) &&
            m_session->setParameterSet(setting, parameterSet, element->GetXmlString())) ||
           refuse(
               Texts::tr("%1 does not take \"%2\"").arg(parameterSet + QLatin1Char('/') + fieldPath, text));
}

bool SessionRunner::select(const QStringList& arguments)
{
    bool isNumber = false;
    const int number = arguments.value(0).toInt(&isNumber);
    if (!isNumber || number < 1 || number > m_session->topLevelCount())
        return refuse(Texts::tr("there is no sub-job %1").arg(arguments.value(0)));
    m_current = number - 1;
    m_shown = m_session->settingAt({m_current});
    return true;
}

bool SessionRunner::expect(const QStringList& arguments)
{
    const QString what = arguments.value(0);
    QString found = QString::number(m_session->topLevelCount());
    if (what != QLatin1String("subjobs")) {
        const QString setName = what.section(QLatin1Char('/'), 0, 0);
        const QString fieldPath = what.section(QLatin1Char('/'), 1);
        JobSession::Setting* const setting = findCarrier(m_session->settingAt({m_current}), setName);
        const auto element = setting ? elementOf(setName, setting->parameterSetText(setName)) : nullptr;
        const REPORTGENERATOR::Field* const field =
            element ? REPORTGENERATOR::findField(element->table(), fieldPath) : nullptr;
        if (!field)
            return refuse(Texts::tr("the sub-job has no \"%1\"").arg(what));
        found = REPORTGENERATOR::fieldText(*element, fieldPath);
        if (fileText(*field, arguments.value(1)) == found)
            return true;
    }
    return found == arguments.value(1) ||
           refuse(Texts::tr("%1 is \"%2\", not \"%3\" as expected").arg(what, found, arguments.value(1)));
}

bool SessionRunner::import(const QStringList& arguments)
{
    const QString path = besideScenario(arguments.value(0));
    const QString format = arguments.value(1, guessListFormat(path));
    if (!listFormats().contains(format))
        return refuse(Texts::tr("there is no format of lists \"%1\"").arg(format),
                      Texts::tr("Formats are %1.").arg(listFormats().join(QLatin1String(", "))));
    const ListPreview preview = previewList(path, format);
    if (!preview.failure.isEmpty())
        return refuse(Texts::tr("%1 is not imported: %2").arg(path, preview.failure));
    for (const ListPreview::Row& row : preview.rows) {
        if (row.entry < 0)
            m_findings.append({Finding::WARNING, path, row.line, 0, row.becomes, QString()});
    }
    JobSession::Setting* const target = targetOf(preview.list);
    if (!target)
        return refuse(Texts::tr("there is no sub-job that takes a list"));
    QList<JobSession::Setting*> made;
    QString error;
    if (!importList(m_session, target, preview.list, &made, &error))
        return refuse(Texts::tr("%1 is not imported: %2").arg(path, error));
    m_shown = target;
    return true;
}

bool SessionRunner::save(const QStringList& arguments)
{
    if (!m_session->save(arguments.value(0), &m_findings))
        return false;
    m_files.append(arguments.value(0));
    return true;
}

bool SessionRunner::picture(const QStringList& arguments)
{
    const QString file = arguments.value(0);
    return drawn(m_artist && m_artist->drawSetting(m_shown, file), file);
}

bool SessionRunner::dialog(const QStringList& arguments)
{
    const QString file = arguments.value(2);
    return drawn(m_artist && m_artist->drawDialog(arguments.value(0), arguments.value(1), file), file);
}

bool SessionRunner::previewImport(const QStringList& arguments)
{
    const QString path = besideScenario(arguments.value(0));
    JobSession::Setting* const target = targetOf(previewList(path, guessListFormat(path)).list);
    if (!target)
        return refuse(Texts::tr("there is no sub-job that takes a list"));
    const QString file = arguments.value(1);
    return drawn(m_artist && m_artist->drawImport(target, path, file), file);
}

bool SessionRunner::window(const QStringList& arguments)
{
    const QString file = arguments.value(1);
    return drawn(m_artist && m_artist->drawWindow(arguments.value(0), m_shown, file), file);
}

bool SessionRunner::wait(const QStringList& arguments)
{
    bool isNumber = false;
    const double seconds = arguments.value(0).toDouble(&isNumber);
    if (!isNumber || !(seconds >= 0 && seconds <= MAX_WAIT))
        return refuse(Texts::tr("\"%1\" is no time to wait").arg(arguments.value(0)));
    QEventLoop loop;
    QTimer::singleShot(int(seconds * 1000), &loop, &QEventLoop::quit);
    loop.exec();
    return true;
}

bool SessionRunner::dock(const QStringList& arguments)
{
    const QString file = arguments.value(1);
    return drawn(m_artist && m_artist->drawDock(arguments.value(0), m_shown, file), file);
}

bool SessionRunner::map(const QStringList& arguments)
{
    const QString file = arguments.value(0);
    return drawn(m_artist && m_artist->drawMap(m_shown, file), file);
}

bool SessionRunner::drawn(bool isWritten, const QString& file)
{
    if (!m_artist)
        return refuse(Texts::tr("there are no windows to be drawn"),
                      Texts::tr("Run it with the job editor."));
    if (!isWritten)
        return refuse(Texts::tr("%1 cannot be written").arg(file));
    m_files.append(file);
    return true;
}

bool SessionRunner::refuse(const QString& text, const QString& advice)
{
    m_findings.append({Finding::FAILURE, m_place, m_place.isEmpty() ? 0 : m_line, 0, text, advice});
    return false;
}

// The setting of the current sub-job that carries a set; made where the plug-in has a kind of setting for it.
JobSession::Setting* SessionRunner::carrierOf(const QString& parameterSet)
{
    JobSession::Setting* const subjob = m_session->settingAt({m_current});
    if (!subjob)
        return nullptr;
    if (JobSession::Setting* const present = findCarrier(subjob, parameterSet))
        return present;
    JobSession::Factory* const factory = m_session->factoryOf(subjob);
    for (const QString& type : m_session->addableTypes(factory, subjob)) {
        JobSession::Setting* const made = factory->needsUserInputOnCreation(type)
                                              ? nullptr
                                              : m_session->add(factory, type, subjob, nullptr);
        if (made && made->parameterSetNames().contains(parameterSet))
            return made;
        if (made)
            m_session->undoStack()->undo();
    }
    return nullptr;
}

// So that it can be run from anywhere.
QString SessionRunner::besideScenario(const QString& file) const
{
    return QFileInfo(m_place).dir().filePath(file);
}

// The current sub-job, with settings for all that a list holds; null if it takes no list.
JobSession::Setting* SessionRunner::targetOf(const FreqStoreXml::FrequencyStoreList& list)
{
    for (const QString& set : parameterSetsOf(list))
        carrierOf(set);
    return importTarget(*m_session, m_session->settingAt({m_current}));
}

} // namespace Session
