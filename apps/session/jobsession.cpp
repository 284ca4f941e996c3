#include "jobsession.h"

#include "importcommand.h"
#include "settingcommands.h"
#include "settingwalk.h"

#include <isubsetting.h>
#include <jedcommonhelper.h>
#include <jedsubsettingfactory.h>
#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QTimer>

using JEDVEPLUGIN::JEDCommonHelper;
using JEDVEPLUGIN::Problem;

namespace Session {

namespace {
Finding::Severity severityOf(const Problem& problem)
{
    switch (problem.severity) {
    case Problem::SEVERITY_NOTE:
        return Finding::NOTE;
    case Problem::SEVERITY_WARNING:
        return Finding::WARNING;
    case Problem::SEVERITY_ERROR:
        break;
    }
    return Finding::FAILURE;
}

void appendFindings(const QList<Problem>& problems, const QString& place, Findings* findings)
{
    for (const Problem& problem : problems)
        findings->append({severityOf(problem), place, 0, 0, problem.text, QString()});
}
} // namespace

JobSession::JobSession(const QList<Factory*>& factories, QObject* parent)
    : QObject(parent)
    , m_factories(factories)
{
    for (Factory* factory : factories)
        watch(factory);
}

JobSession::~JobSession()
{
    drop();
}

void JobSession::begin(JEDVE::enJOB_TYPE type, const QString& name)
{
    drop();
    m_document.begin(type, name);
    prepareFactories();
    emit jobReplaced();
}

bool JobSession::open(const QString& path, Findings* findings)
{
    JobDocument document;
    if (!document.load(path, findings))
        return false;
    takeOver(document, findings);
    emit jobReplaced();
    return true;
}

bool JobSession::recover(const QByteArray& content, const QString& path, Findings* findings)
{
    JobDocument document;
    if (!document.take(content, path, findings))
        return false;
    takeOver(document, findings);
    m_undoStack.resetClean();
    emit jobReplaced();
    return true;
}

bool JobSession::save(const QString& path, Findings* findings)
{
    if (!compose(findings) || !m_document.save(path, findings))
        return false;
    for (Factory* factory : qAsConst(m_factories))
        factory->setModified(false);
    m_undoStack.setClean();
    endEditStep();
    return true;
}

bool JobSession::compose(Findings* findings)
{
    bool isComplete = true;
    const QVector<JobXml::Subjob> subjobs = writtenSubjobs(&isComplete, findings);
    if (isComplete)
        m_document.job().SetSubjob(subjobs);
    return isComplete;
}

QByteArray JobSession::draft()
{
    JobDocument draft = m_document;
    bool isComplete = true;
    Findings findings;
    draft.job().SetSubjob(writtenSubjobs(&isComplete, &findings));
    return draft.text();
}

bool JobSession::composeSubjob(int index, JobXml::Subjob* subjob, QList<Problem>* problems) const
{
    const TopLevel& top = topLevel(index);
    *subjob = top.subjob;
    return !top.setting || top.factory->writeSubjob(top.setting, *subjob, problems);
}

bool JobSession::isModified() const
{
    return !m_undoStack.isClean();
}

void JobSession::setReadOnly(bool readOnly)
{
    flushEdits();
    m_isReadOnly = readOnly;
    for (Factory* factory : qAsConst(m_factories))
        factory->setReadOnly(readOnly);
    emit structureChanged();
}

JEDVE::enJOB_TYPE JobSession::jobType() const
{
    return JEDCommonHelper::jobXmlTypeToJobType(m_document.job().GetJobInformation().GetJobType());
}

QList<JobSession::Factory*> JobSession::activeFactories() const
{
    QList<Factory*> result;
    for (Factory* factory : m_factories) {
        if (factory->supportedJobTypes().contains(jobType()))
            result.append(factory);
    }
    return result;
}

int JobSession::topLevelIndex(const Setting* setting) const
{
    for (int i = 0; i < topLevelCount(); ++i) {
        if (setting && topLevel(i).setting == setting)
            return i;
    }
    return -1;
}

int JobSession::rootIndex(const Setting* setting) const
{
    while (setting && setting->parent())
        setting = setting->parent();
    return topLevelIndex(setting);
}

JobSession::Factory* JobSession::factoryOf(const Setting* setting) const
{
    const int index = rootIndex(setting);
    return index < 0 ? nullptr : topLevel(index).factory;
}

SettingPath JobSession::pathOf(Setting* setting) const
{
    SettingPath path;
    for (; setting && setting->parent(); setting = setting->parent())
        path.prepend(setting->row());
    const int index = topLevelIndex(setting);
    if (index < 0)
        return SettingPath();
    path.prepend(index);
    return path;
}

JobSession::Setting* JobSession::settingAt(const SettingPath& path) const
{
    if (path.isEmpty() || path.first() < 0 || path.first() >= topLevelCount())
        return nullptr;
    Setting* setting = topLevel(path.first()).setting;
    for (int level = 1; setting && level < path.size(); ++level)
        setting = setting->child(path[level]);
    return setting;
}

QStringList JobSession::addableTypes(Factory* factory, Setting* parent) const
{
    QStringList result;
    if (factory->isReadOnly() || (parent && parent->isReadOnly()))
        return result;
    for (const QString& type : factory->supportedTypesOf(parent ? parent->getSettingType() : QString())) {
        int count = parent ? parent->typeCount(type) : 0;
        if (!parent) {
            for (const TopLevel& top : m_topLevel)
                count += top.factory == factory && top.setting->getSettingType() == type ? 1 : 0;
        }
        if (factory->isAppendable(parent, type) && count < factory->getMaxCount(type))
            result.append(type);
    }
    return result;
}

JobSession::Setting* JobSession::add(Factory* factory, const QString& type, Setting* parent, QWidget* window)
{
    if (!addableTypes(factory, parent).contains(type))
        return nullptr;
    flushEdits();
    const QScopedValueRollback<bool> working(m_isWorking, true);
    Setting* const setting = factory->needsUserInputOnCreation(type)
                                 ? factory->createSubSettingByUser(type, parent, window)
                                 : factory->createSubSetting(type, parent);
    return inserted(factory, setting, tr("Add %1").arg(factory->settingDisplayName(type)));
}

JobSession::Setting* JobSession::addSubjob(const JobXml::Subjob& subjob)
{
    flushEdits();
    const QScopedValueRollback<bool> working(m_isWorking, true);
    for (Factory* factory : activeFactories()) {
        if (factory->isReadOnly() || !factory->claimsSubjob(subjob))
            continue;
        if (Setting* const setting = factory->readSubjob(subjob, nullptr))
            return inserted(factory, setting, tr("Add %1").arg(setting->getDisplayName()));
    }
    return nullptr;
}

bool JobSession::remove(Setting* setting)
{
    Factory* const factory = factoryOf(setting);
    if (!factory || factory->isReadOnly() || !factory->isDeletable(setting))
        return false;
    flushEdits();
    const SettingPath path = pathOf(setting);
    const QString step = tr("Delete %1").arg(setting->getDisplayName());
    const SettingContent content = contentOf(setting);
    if (!removeAt(path))
        return false;
    push(new RemoveCommand(this, step, path, factory, content));
    return true;
}

JobSession::Setting* JobSession::duplicate(Setting* setting)
{
    Factory* const factory = factoryOf(setting);
    if (!factory || factory->isReadOnly())
        return nullptr;
    flushEdits();
    const QScopedValueRollback<bool> working(m_isWorking, true);
    const QString step = tr("Duplicate %1").arg(setting->getDisplayName());
    return inserted(factory, factory->duplicateSubSetting(setting), step);
}

QString JobSession::textOf(Setting* setting) const
{
    return setting->supportsMimeText() ? setting->getMimeText(0) : QString();
}

JobSession::Setting* JobSession::paste(const QString& text, Setting* parent)
{
    flushEdits();
    const QScopedValueRollback<bool> working(m_isWorking, true);
    const QList<Factory*> candidates = parent ? QList<Factory*>{factoryOf(parent)} : activeFactories();
    for (Factory* factory : candidates) {
        if (!factory || factory->isReadOnly())
            continue;
        if (Setting* const setting = factory->pasteMimeText(text, parent))
            return inserted(factory, setting, tr("Paste %1").arg(setting->getDisplayName()));
    }
    return nullptr;
}

bool JobSession::rename(Setting* setting, const QString& name)
{
    flushEdits();
    const SettingPath path = pathOf(setting);
    const QString before = path.isEmpty() ? QString() : setting->getDisplayName();
    if (path.isEmpty() || setting->isReadOnly() || before == name || !renameAt(path, name))
        return false;
    push(new RenameCommand(this, tr("Rename %1").arg(before), path, before, name));
    return true;
}

bool JobSession::move(Setting* parent, int from, int to)
{
    const int count = parent ? parent->childCount() : topLevelCount();
    if (m_isReadOnly || from < 0 || from >= count || to < 0 || to > count || to == from || to == from + 1)
        return false;
    if (parent && !parent->canMoveChild(parent->child(from)))
        return false;
    flushEdits();
    const SettingPath path = parent ? pathOf(parent) : SettingPath();
    moveAt(path, from, to);
    push(new MoveCommand(this, tr("Move"), path, from, to));
    return true;
}

bool JobSession::setParameterSet(Setting* setting, const QString& name, const QString& xml)
{
    if (pathOf(setting).isEmpty() || setting->isReadOnly() || !setting->setParameterSetText(name, xml))
        return false;
    m_changed.insert(setting);
    flushEdits();
    return true;
}

void JobSession::flushEdits()
{
    m_isFlushPending = false;
    QVector<EditCommand::Change> changes;
    const QSet<Setting*> settings = std::exchange(m_changed, {});
    QString name;
    for (auto known = m_known.begin(); known != m_known.end(); ++known) {
        if (!settings.contains(known.key()))
            continue;
        QStringList sets = known.key()->parameterSetNames() + known->keys(); // Also those that have gone.
        sets.removeDuplicates();
        for (const QString& set : qAsConst(sets)) {
            QString& before = (*known)[set];
            const QString after = known.key()->parameterSetText(set);
            if (after == before)
                continue;
            changes.append({pathOf(known.key()), set, before, after});
            name = known.key()->getDisplayName();
            before = after;
        }
    }
    if (changes.isEmpty())
        return;
    // The order of a hash is no order to rely on.
    std::sort(changes.begin(), changes.end(), [](const auto& left, const auto& right) {
        return std::tie(left.path, left.set) < std::tie(right.path, right.set);
    });
    push(new EditCommand(this, tr("Change %1").arg(name), changes, m_editStep));
}

void JobSession::drop()
{
    const QScopedValueRollback<bool> working(m_isWorking, true);
    emit jobLeaving();
    m_undoStack.clear();
    m_known.clear();
    m_changed.clear();
    m_topLevel.clear();
    for (Factory* factory : qAsConst(m_factories))
        factory->clear();
}

void JobSession::takeOver(const JobDocument& document, Findings* findings)
{
    drop();
    const QScopedValueRollback<bool> working(m_isWorking, true);
    m_document = document;
    prepareFactories();
    int number = 0;
    for (const JobXml::Subjob& subjob : m_document.job().GetSubjob()) {
        ++number;
        m_topLevel.push_back(read(subjob, tr("Sub-job %1").arg(number), findings));
        if (Setting* const setting = m_topLevel.back().setting)
            walk(setting, [this](Setting* node) { remember(node); });
    }
    for (Factory* factory : qAsConst(m_factories))
        factory->setModified(false);
}

void JobSession::prepareFactories()
{
    m_isReadOnly = false;
    for (Factory* factory : qAsConst(m_factories)) {
        factory->setReadOnly(false);
        factory->slot_setCurrentJobType(jobType());
    }
}

QVector<JobXml::Subjob> JobSession::writtenSubjobs(bool* isComplete, Findings* findings)
{
    flushEdits();
    QVector<JobXml::Subjob> result;
    for (int i = 0; i < topLevelCount(); ++i) {
        const Setting* const setting = topLevel(i).setting;
        JobXml::Subjob subjob;
        QList<Problem> problems;
        *isComplete = composeSubjob(i, &subjob, &problems) && *isComplete;
        appendFindings(problems, setting ? setting->getDisplayName() : QString(), findings);
        result.append(subjob);
    }
    return result;
}

JobSession::TopLevel JobSession::newTopLevel(Factory* factory, Setting* setting, const JobXml::Subjob& subjob)
{
    return {factory, setting, subjob, QString(), ++m_lastNumber};
}

JobSession::TopLevel JobSession::read(const JobXml::Subjob& subjob, const QString& place, Findings* findings)
{
    TopLevel result = newTopLevel(nullptr, nullptr, subjob);
    for (Factory* factory : activeFactories()) {
        if (!factory->claimsSubjob(subjob))
            continue;
        QList<Problem> problems;
        result.setting = factory->readSubjob(subjob, &problems);
        appendFindings(problems, place, findings);
        if (result.setting) {
            result.factory = factory;
            return result;
        }
        result.reason = tr("The plug-in \"%1\" claims it but cannot read it.").arg(factory->getName());
    }
    if (result.reason.isEmpty())
        result.reason = tr("No plug-in for this kind of job claims it.");
    findings->append(
        {Finding::WARNING, place, 0, 0, tr("is kept as it is but cannot be edited"), result.reason});
    return result;
}

void JobSession::watch(Factory* factory)
{
    connect(factory, &Factory::stateChanged, this, &JobSession::noteState);
    connect(factory, &Factory::createSubSettingRequest, this,
            [this, factory](const QString& type, Setting* parent) { add(factory, type, parent, nullptr); });
    connect(factory, &Factory::deleteSubSettingRequest, this, [this](Setting* setting) { remove(setting); });
}

void JobSession::noteState(Setting* setting)
{
    if (m_isWorking)
        return;
    emit settingChanged(setting);
    m_changed.insert(setting);
    if (!std::exchange(m_isFlushPending, true))
        QTimer::singleShot(0, this, &JobSession::flushEdits);
}

void JobSession::remember(Setting* setting)
{
    Texts texts;
    for (const QString& set : setting->parameterSetNames())
        texts.insert(set, setting->parameterSetText(set));
    m_known.insert(setting, texts);
}

void JobSession::forget(Setting* setting)
{
    m_known.remove(setting);
    m_changed.remove(setting);
}

void JobSession::push(QUndoCommand* command)
{
    if (m_collected)
        m_collected->append(command);
    else
        m_undoStack.push(command);
}

void JobSession::tellStructure()
{
    if (m_structureHolds == 0)
        emit structureChanged();
}

SettingContent JobSession::contentOf(Setting* setting) const
{
    const int index = topLevelIndex(setting);
    return {textOf(setting), setting->getDisplayName(),
            index < 0 ? JobXml::Subjob() : topLevel(index).subjob};
}

JobSession::Setting* JobSession::inserted(Factory* factory, Setting* setting, const QString& step)
{
    if (!setting)
        return nullptr;
    if (!setting->parent()) {
        m_topLevel.push_back(newTopLevel(factory, setting, JobXml::Subjob()));
    }
    walk(setting, [this](Setting* node) { remember(node); });
    push(new InsertCommand(this, step, pathOf(setting), factory));
    tellInserted(setting);
    return setting;
}

} // namespace Session
