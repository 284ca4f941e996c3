#include "rulelog.h"

#include "fieldplaces.h"

#include <algorithm>
#include <jobxml/quantity.h>
#include <kit/subjobtree.h>
#include <reportlayer/elementtable.h>
#include <ruleobjectmanager.h>
#include <values/tree.h>

using JEDVEPLUGIN::RuleObjectManager;
using JEDVEPLUGIN::RuleRegistration;
using JEDVEPLUGIN::RuleRunInfo;

namespace Session {

namespace {
int countOf(const RuleRun& run)
{
    int count = 1;
    for (const std::unique_ptr<RuleRun>& inner : run.inner)
        count += countOf(*inner);
    return count;
}

RuleChange* findChange(RuleRun* run, const QString& path)
{
    for (RuleChange& change : run->changes) {
        if (change.path == path)
            return &change;
    }
    return nullptr;
}
} // namespace

bool RuleRun::isEmpty() const
{
    return isFunctionMissing && changes.isEmpty() && errors.isEmpty() && !isStopped && inner.empty();
}

/// Knows what a value was before its latest change. There are many of them, so it makes nothing readable by itself.
class RuleLog::Watch : public IObserver
{
public:
    Watch(RuleLog* log, ValueBase* value, const QString& path)
        : m_log(log)
        , m_value(value)
        , m_path(path)
        , m_text(value->GetText())
    {
        value->AddObserver(this);
    }
    ~Watch() override { m_value->DeleteObserver(this); }

    const ValueBase* value() const { return m_value; }

    RuleChange latestChange() const { return {m_path, readable(m_textBefore), readable(m_text)}; }

    /// Tells the log of a change that it has not been told of.
    void look()
    {
        QString text = m_value->GetText();
        if (text == m_text)
            return;
        m_text.swap(text);
        m_textBefore = text;
        m_log->noteChange(*this);
    }

    void Update(Observable*, TChangeCode code) override
    {
        if (code == CHANGE_VALUE || code == CHANGE_ITEMS)
            look();
        else if (code == CHANGE_STATE && m_value->GetState() == STATE_LEAVING)
            m_log->noteGone(m_path); // deletes this
    }

    const QString& path() const { return m_path; }

private:
    Q_DISABLE_COPY(Watch)

    QString readable(const QString& text) const
    {
        const REPORTGENERATOR::Field* const field = PluginKit::SubjobTree::field(fieldOfPath(m_path));
        return JobXml::readableQuantity(text, field ? field->unit() : QString());
    }

    RuleLog* m_log;
    ValueBase* m_value;
    QString m_path;
    QString m_textBefore;
    QString m_text;
};

RuleLog::RuleLog(int mostRuns, QObject* parent)
    : QObject(parent)
    , m_before(JEDVEPLUGIN::setRuleMonitor(this))
    , m_mostRuns(std::max(1, mostRuns))
{
    qRegisterMetaType<Run>("Session::RuleLog::Run");
}

RuleLog::~RuleLog()
{
    JEDVEPLUGIN::setRuleMonitor(m_before);
}

void RuleLog::clear()
{
    const int count = m_runs.size();
    m_runs.clear();
    m_count = 0;
    if (count > 0)
        emit runsDropped(count);
}

void RuleLog::managerDestroyed(const Manager* manager)
{
    const QStringList paths = m_paths.values(manager);
    m_paths.remove(manager);
    for (const QString& path : paths)
        noteGone(path);
}

void RuleLog::objectRegistered(const RuleRegistration& registration)
{
    const QString& path = registration.valueTreePath;
    ValueBase* const value = path.isEmpty() ? nullptr : Tree::Instance()->FindByPath(path);
    if (!value)
        return;
    m_paths.insert(registration.manager, path);
    std::unique_ptr<Watch>& watch = m_watches[path];
    if (!watch || watch->value() != value)
        watch = std::make_unique<Watch>(this, value, path);
}

// The rule hears of its trigger's change before the watch does, which is attached later.
void RuleLog::runBegins(const RuleRunInfo& info)
{
    const auto watch = m_watches.find(info.trigger);
    if (watch != m_watches.end())
        watch->second->look();
    if (m_open.empty())
        m_openCount = 0;
    if (m_openCount == m_mostRuns) {
        ++m_open.front()->droppedRuns;
        m_open.push_back(nullptr);
        return;
    }
    ++m_openCount;
    auto run = std::make_unique<RuleRun>();
    run->time = QDateTime::currentDateTimeUtc();
    run->scriptFile = info.scriptFile;
    run->function = info.function;
    run->trigger.path = info.trigger;
    if (watch != m_watches.end())
        run->trigger = watch->second->latestChange();
    m_open.push_back(std::move(run));
}

void RuleLog::runEnds(const RuleRunInfo& info)
{
    if (m_open.empty())
        return; // The log came in between.
    std::unique_ptr<RuleRun> run = std::move(m_open.back());
    m_open.pop_back();
    if (!run)
        return;
    run->errors = info.errors;
    run->nanoseconds = info.nanoseconds;
    run->isFunctionMissing = info.isFunctionMissing;
    run->isStopped = info.isStopped;
    const auto isTakenBack = [](const RuleChange& change) { return change.before == change.after; };
    run->changes.erase(std::remove_if(run->changes.begin(), run->changes.end(), isTakenBack),
                       run->changes.end());
    if (m_open.empty())
        keep(std::move(run));
    else
        m_open.back()->inner.push_back(std::move(run));
}

RuleRun* RuleLog::innermost() const
{
    const auto found = std::find_if(m_open.rbegin(), m_open.rend(),
                                    [](const std::unique_ptr<RuleRun>& run) { return run != nullptr; });
    return found == m_open.rend() ? nullptr : found->get();
}

void RuleLog::noteChange(const Watch& watch)
{
    RuleRun* const run = innermost();
    if (!run)
        return removeMark(watch.path());
    const RuleChange change = watch.latestChange();
    RuleChange* known = findChange(run, change.path);
    if (known) {
        known->after = change.after;
    } else {
        run->changes.append(change);
        known = &run->changes.last();
    }
    m_marks.insert(change.path, {run->time, run->function, known->before, known->after});
    emit markChanged(change.path);
}

// By value: the path goes with the watch.
void RuleLog::noteGone(QString path)
{
    m_watches.erase(path);
    removeMark(path);
}

void RuleLog::removeMark(const QString& path)
{
    if (m_marks.remove(path) > 0)
        emit markChanged(path);
}

void RuleLog::keep(std::unique_ptr<RuleRun> run)
{
    m_count += countOf(*run);
    int dropped = 0;
    while (dropped < m_runs.size() && m_count > m_mostRuns)
        m_count -= countOf(*m_runs.at(dropped++));
    m_runs.remove(0, dropped);
    if (dropped > 0)
        emit runsDropped(dropped);
    m_runs.append(std::move(run));
    emit runAdded(m_runs.constLast());
}

} // namespace Session
