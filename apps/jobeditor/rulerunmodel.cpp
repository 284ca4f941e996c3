#include "rulerunmodel.h"

#include <algorithm>
#include <QDir>
#include <QGuiApplication>
#include <QPalette>
#include <session/fieldplaces.h>
#include <vector>

using Session::RuleChange;
using Session::RuleLog;
using Session::RuleRun;

struct RuleRunModel::Row
{
    Row* parent = nullptr; // Null for an outermost run.
    int number = 0;        // Among its siblings; of outermost runs, since the model was made.
    QString texts[COLUMN_COUNT];
    QString path;
    QString script; // Of a run.
    bool isFault = false;
    bool isUnused = false;
    std::vector<std::unique_ptr<Row>> children;

    Row* add()
    {
        children.push_back(std::make_unique<Row>());
        Row* const row = children.back().get();
        row->parent = this;
        row->number = int(children.size()) - 1;
        return row;
    }

    void addNote(const QString& title, const QString& text, bool isBad)
    {
        Row* const row = add();
        row->texts[COLUMN_RULE] = title;
        row->texts[COLUMN_CHANGE] = text;
        row->isFault = isBad;
        isFault = isFault || isBad;
    }

    QString allTexts() const
    {
        QString result;
        for (const QString& text : texts)
            result += text + QLatin1Char('\n');
        for (const auto& child : children)
            result += child->allTexts();
        return result;
    }
};

namespace {
// To be told from the text on light and on dark windows.
QColor faultColour()
{
    const bool isLight = QGuiApplication::palette().color(QPalette::Base).lightness() > 128;
    return isLight ? QColor(176, 0, 32) : QColor(255, 138, 128);
}

QString arrow(const RuleChange& change)
{
    return QStringLiteral("%1 \u2192 %2").arg(change.before, change.after);
}
} // namespace

RuleRunModel::RuleRunModel(RuleLog* log, QObject* parent)
    : QAbstractItemModel(parent)
{
    for (const RuleLog::Run& run : log->runs())
        append(run);
    connect(log, &RuleLog::runAdded, this, &RuleRunModel::append);
    connect(log, &RuleLog::runsDropped, this, &RuleRunModel::removeFirst);
}

RuleRunModel::~RuleRunModel() = default;

QModelIndex RuleRunModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    const Row* const above = rowAt(parent);
    Row* const found = above ? above->children[size_t(row)].get() : m_rows[size_t(row)].get();
    return createIndex(row, column, found);
}

QModelIndex RuleRunModel::parent(const QModelIndex& index) const
{
    const Row* const row = rowAt(index);
    return row && row->parent ? createIndex(rowOf(row->parent), 0, row->parent) : QModelIndex();
}

int RuleRunModel::rowCount(const QModelIndex& parent) const
{
    const Row* const row = rowAt(parent);
    if (parent.column() > 0)
        return 0;
    return int(row ? row->children.size() : m_rows.size());
}

int RuleRunModel::columnCount(const QModelIndex&) const
{
    return COLUMN_COUNT;
}

QVariant RuleRunModel::data(const QModelIndex& index, int role) const
{
    const Row* const row = rowAt(index);
    if (!row)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return row->texts[index.column()];
    case Qt::ToolTipRole:
        return index.column() == COLUMN_RULE && !row->script.isEmpty()
                   ? row->texts[COLUMN_RULE] + QLatin1Char('\n') + QDir::toNativeSeparators(row->script)
                   : row->texts[index.column()];
    case Qt::ForegroundRole:
        return row->isFault ? faultColour() : QVariant();
    case PATH_ROLE:
        return row->path;
    case UNUSED_ROLE:
        return row->isUnused;
    case SEARCH_ROLE:
        return row->allTexts();
    default:
        return QVariant();
    }
}

QVariant RuleRunModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const QString titles[COLUMN_COUNT] = {tr("Rule"), tr("Set off by, or what was changed"), tr("Time (UTC)"),
                                          tr("Duration")};
    return orientation == Qt::Horizontal && role == Qt::DisplayRole && section < COLUMN_COUNT
               ? titles[section]
               : QVariant();
}

void RuleRunModel::append(const RuleLog::Run& run)
{
    const int row = int(m_rows.size());
    beginInsertRows(QModelIndex(), row, row);
    m_rows.push_back(makeRun(*run, nullptr, m_firstNumber + row));
    endInsertRows();
}

void RuleRunModel::removeFirst(int count)
{
    beginRemoveRows(QModelIndex(), 0, count - 1);
    m_rows.erase(m_rows.begin(), m_rows.begin() + count);
    m_firstNumber += count;
    endRemoveRows();
}

int RuleRunModel::rowOf(const Row* row) const
{
    return row->parent ? row->number : row->number - m_firstNumber;
}

std::unique_ptr<RuleRunModel::Row> RuleRunModel::makeRun(const RuleRun& run, Row* parent, int number)
{
    auto row = std::make_unique<Row>();
    row->parent = parent;
    row->number = number;
    row->path = run.trigger.path;
    row->script = run.scriptFile;
    row->isUnused = run.isEmpty();
    row->texts[COLUMN_RULE] =
        run.isFunctionMissing ? tr("%1 (not in the script)").arg(run.function) : run.function;
    if (!run.trigger.path.isEmpty())
        row->texts[COLUMN_CHANGE] =
            tr("%1: %2").arg(Session::fieldTitle(run.trigger.path), arrow(run.trigger));
    row->texts[COLUMN_TIME] = run.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    row->texts[COLUMN_DURATION] = tr("%1 ms").arg(double(run.nanoseconds) / 1e6, 0, 'f', 1);
    for (const RuleChange& change : run.changes) {
        Row* const changed = row->add();
        changed->texts[COLUMN_RULE] = Session::fieldTitle(change.path);
        changed->texts[COLUMN_CHANGE] = arrow(change);
        changed->path = change.path;
    }
    for (const JEDVEPLUGIN::RuleError& error : run.errors)
        row->addNote(tr("Line %1").arg(error.line), error.text, true);
    if (run.isStopped)
        row->addNote(tr("Stopped"), tr("It ran for too long. What it had changed stays changed."), true);
    for (const auto& inner : run.inner) {
        std::unique_ptr<Row> child = makeRun(*inner, row.get(), int(row->children.size()));
        row->isFault = row->isFault || child->isFault;
        row->children.push_back(std::move(child));
    }
    if (run.droppedRuns > 0)
        row->addNote(tr("Further runs"), QString::number(run.droppedRuns), false);
    return row;
}

const RuleRunModel::Row* RuleRunModel::rowAt(const QModelIndex& index)
{
    return static_cast<const Row*>(index.internalPointer());
}
