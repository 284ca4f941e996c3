#include "rulespane.h"

#include "rulerunmodel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>
#include <ruletimelimit.h>
#include <session/fieldplaces.h>
#include <session/rulelog.h>
#include <values/valuebase.h>
#include <velmogui/parameterseteditor.h>
#include <velmogui/valuecontrol.h>

using Session::RuleLog;
using Session::RuleMark;
using VelmoGui::ParameterSetEditor;

/// Outermost runs that have the text somewhere; runs without a function only when asked for.
class RuleRunFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setText(const QString& text)
    {
        m_text = text;
        invalidateFilter();
    }

    void showUnused(bool isShown)
    {
        m_showsUnused = isShown;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override
    {
        const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
        if (!m_showsUnused && index.data(RuleRunModel::UNUSED_ROLE).toBool())
            return false;
        return sourceParent.isValid() || m_text.isEmpty() ||
               index.data(RuleRunModel::SEARCH_ROLE).toString().contains(m_text, Qt::CaseInsensitive);
    }

private:
    QString m_text;
    bool m_showsUnused = false;
};

namespace {
bool hasFault(const Session::RuleRun& run)
{
    bool result = run.isStopped || !run.errors.isEmpty();
    for (const auto& inner : run.inner)
        result = result || hasFault(*inner);
    return result;
}

void setMark(ParameterSetEditor* editor, const QString& field, const RuleLog& log)
{
    const ValueBase* const value = editor->control(field)->value();
    const auto mark = value ? log.marks().constFind(value->GetPathName()) : log.marks().constEnd();
    const bool isMarked = mark != log.marks().constEnd();
    editor->setMark(
        field, isMarked ? RulesPane::tr("by rule") : QString(),
        isMarked ? RulesPane::tr("Set by the rule %1 at %2 UTC. Before: %3")
                       .arg(mark->function, mark->time.toString(QStringLiteral("HH:mm:ss")), mark->before)
                 : QString());
}
} // namespace

RulesPane::RulesPane(Session::JobSession* session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_log(new RuleLog(RuleLog::MOST_RUNS, this))
    , m_filter(new RuleRunFilter(this))
    , m_view(new QTreeView(this))
{
    JEDVEPLUGIN::setRuleTimeLimit(Session::RULE_TIME_LIMIT);
    m_filter->setSourceModel(new RuleRunModel(m_log, this));
    m_view->setModel(m_filter);
    m_view->setObjectName(QStringLiteral("ruleRuns"));
    m_view->setAccessibleName(tr("Rules that ran"));
    m_view->setUniformRowHeights(true);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    const int letter = m_view->fontMetrics().averageCharWidth();
    m_view->setColumnWidth(RuleRunModel::COLUMN_RULE, 50 * letter);
    m_view->setColumnWidth(RuleRunModel::COLUMN_CHANGE, 55 * letter);
    m_view->setColumnWidth(RuleRunModel::COLUMN_TIME, 18 * letter);
    auto* const filterEdit = new QLineEdit(this);
    filterEdit->setObjectName(QStringLiteral("ruleFilter"));
    filterEdit->setPlaceholderText(tr("Filter rules"));
    filterEdit->setAccessibleName(tr("Filter rules"));
    filterEdit->setClearButtonEnabled(true);
    auto* const unusedBox = new QCheckBox(tr("Changes &without a rule"), this);
    unusedBox->setToolTip(tr("Shows also values for which the script has no function"));
    auto* const clearButton = new QPushButton(tr("&Clear"), this);

    auto* const row = new QHBoxLayout;
    row->addWidget(filterEdit, 1);
    row->addWidget(unusedBox);
    row->addWidget(clearButton);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(m_view);

    connect(filterEdit, &QLineEdit::textChanged, m_filter, &RuleRunFilter::setText);
    connect(unusedBox, &QCheckBox::toggled, m_filter, &RuleRunFilter::showUnused);
    connect(clearButton, &QPushButton::clicked, m_log, &RuleLog::clear);
    connect(m_view, &QTreeView::activated, this, &RulesPane::choose);
    connect(m_log, &RuleLog::runAdded, this, &RulesPane::scrollToNewest);
    connect(m_log, &RuleLog::runAdded, this, &RulesPane::countFaults);
    connect(m_log, &RuleLog::runsDropped, this, &RulesPane::countFaults);
    connect(m_log, &RuleLog::markChanged, this, &RulesPane::markField);
}

RulesPane::~RulesPane()
{
    JEDVEPLUGIN::setRuleTimeLimit(0);
}

void RulesPane::markFields(QWidget* widget)
{
    m_marked = widget;
    if (!widget)
        return;
    for (ParameterSetEditor* editor : widget->findChildren<ParameterSetEditor*>()) {
        for (const QString& field : editor->fields())
            setMark(editor, field, *m_log);
    }
}

void RulesPane::choose(const QModelIndex& index)
{
    const QString path = index.data(RuleRunModel::PATH_ROLE).toString();
    const Session::FieldPlace place =
        path.isEmpty() ? Session::FieldPlace() : Session::findField(*m_session, path);
    if (place.setting)
        emit fieldChosen(place.setting, place.parameterSet, place.field);
}

void RulesPane::countFaults()
{
    int count = 0;
    for (const RuleLog::Run& run : m_log->runs())
        count += hasFault(*run) ? 1 : 0;
    emit faultCountChanged(count);
}

void RulesPane::scrollToNewest()
{
    const int last = m_filter->rowCount() - 1;
    const QModelIndex index = m_filter->index(last, 0);
    m_view->expand(index);
    m_view->scrollTo(index);
}

void RulesPane::markField(const QString& path)
{
    if (!m_marked)
        return;
    for (ParameterSetEditor* editor : m_marked->findChildren<ParameterSetEditor*>()) {
        const QString field = path.section(QLatin1Char('/'), -1);
        if (editor->name() == path.section(QLatin1Char('/'), -2, -2) && editor->control(field))
            setMark(editor, field, *m_log);
    }
}
