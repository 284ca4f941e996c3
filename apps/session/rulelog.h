#pragma once

#include <memory>
#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVector>
#include <rulemonitor.h>
#include <unordered_map>
#include <vector>

namespace Session {

/// How long a rule may run in the programs that show rules, in milliseconds.
constexpr int RULE_TIME_LIMIT = 5000;

/// A value that was changed, in readable form.
struct RuleChange
{
    QString path; ///< in the value tree
    QString before;
    QString after;
};

/// A rule run that is over, with those that took place inside it.
struct RuleRun
{
    QDateTime time; ///< of the beginning, UTC
    QString scriptFile;
    QString function;
    RuleChange trigger;          ///< what set it off; without a path if the host called for it
    QVector<RuleChange> changes; ///< by its function, of registered values; each value once
    QVector<JEDVEPLUGIN::RuleError> errors;
    qint64 nanoseconds = 0;
    bool isFunctionMissing = false;
    bool isStopped = false;
    int droppedRuns = 0; ///< inside it, beyond what the log keeps
    std::vector<std::unique_ptr<RuleRun>> inner;

    /// Whether its function does not exist and nothing else can be told of it.
    bool isEmpty() const;
};

/// The value that a rule gave to a field, as long as nobody else has set it.
struct RuleMark
{
    QDateTime time; ///< UTC
    QString function;
    QString before;
    QString after;
};

/// Keeps the latest rule runs of the process, and which values stand as a rule has set them. Only knows objects that
/// are registered after it was made. One at a time; without one, rules cost what they cost. GUI thread only.
class RuleLog : public QObject, private JEDVEPLUGIN::IRuleMonitor
{
    Q_OBJECT
public:
    static constexpr int MOST_RUNS = 1000;

    using Run = std::shared_ptr<const RuleRun>;

    /// \param mostRuns  how many are kept, inner ones counted, too; older ones are dropped
    explicit RuleLog(int mostRuns = MOST_RUNS, QObject* parent = nullptr);
    ~RuleLog() override;

    /// Outermost runs, the newest last.
    const QVector<Run>& runs() const { return m_runs; }
    void clear();

    /// By path of the value.
    const QHash<QString, RuleMark>& marks() const { return m_marks; }

signals:
    /// An outermost run is over. Comes before the code that set the run off goes on.
    void runAdded(const Session::RuleLog::Run& run);
    /// The oldest runs were dropped.
    void runsDropped(int count);
    /// A value was set by a rule, was set by somebody else afterwards, or went.
    void markChanged(const QString& path);

private:
    class Watch;
    friend class Watch;
    using Manager = JEDVEPLUGIN::RuleObjectManager;

    void managerDestroyed(const Manager* manager) override;
    void objectRegistered(const JEDVEPLUGIN::RuleRegistration& registration) override;
    void runBegins(const JEDVEPLUGIN::RuleRunInfo& info) override;
    void runEnds(const JEDVEPLUGIN::RuleRunInfo& info) override;

    RuleRun* innermost() const;
    void noteChange(const Watch& watch);
    void noteGone(QString path);
    void removeMark(const QString& path);
    void keep(std::unique_ptr<RuleRun> run);

    JEDVEPLUGIN::IRuleMonitor* m_before; // Not owned; had the place.
    int m_mostRuns;
    int m_count = 0; // Runs that are kept.
    QVector<Run> m_runs;
    std::vector<std::unique_ptr<RuleRun>> m_open; // From the outermost in; null where nothing is kept.
    int m_openCount = 0;                          // Runs kept so far of the outermost one, itself included.
    std::unordered_map<QString, std::unique_ptr<Watch>> m_watches;
    QMultiHash<const Manager*, QString> m_paths;
    QHash<QString, RuleMark> m_marks;
};

} // namespace Session
