#include "problemspane.h"

#include <isubsetting.h>
#include <jobxml/settings.h>
#include <QHeaderView>
#include <QStyle>
#include <reportlayer/fieldaccess.h>
#include <resourcedescription.h>
#include <session/jobproblems.h>
#include <session/jobsession.h>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;
using Session::JobProblem;
using Session::JobSession;
using Session::PacedRefresh;

namespace {
enum Column { COLUMN_TEXT, COLUMN_SETTING, COLUMN_FIELD };
enum Role { ROLE_SUBJOB = Qt::UserRole, ROLE_SETTING, ROLE_SET, ROLE_FIELD };

QStyle::StandardPixmap pictureOf(Problem::Severity severity)
{
    switch (severity) {
    case Problem::SEVERITY_NOTE:
        return QStyle::SP_MessageBoxInformation;
    case Problem::SEVERITY_WARNING:
        return QStyle::SP_MessageBoxWarning;
    case Problem::SEVERITY_ERROR:
        break;
    }
    return QStyle::SP_MessageBoxCritical;
}

bool isSame(const JobProblem& left, const JobProblem& right)
{
    const auto parts = [](const JobProblem& found) {
        const Problem& problem = found.problem;
        return std::tie(found.subjob, found.setting, found.place, problem.severity, problem.parameterSet,
                        problem.field, problem.text);
    };
    return parts(left) == parts(right);
}

// The field by its label where the schema has one.
QString fieldText(const QString& parameterSet, const QString& path)
{
    const REPORTGENERATOR::ParameterSet* const set = JobXml::findParameterSet(parameterSet);
    const REPORTGENERATOR::Field* const field = set ? REPORTGENERATOR::findField(*set->table, path) : nullptr;
    return field ? field->label() : path;
}
} // namespace

ProblemsPane::ProblemsPane(JobSession* session, QWidget* parent)
    : QTreeWidget(parent)
    , m_finder(session)
    , m_refresh([this] { refresh(); }, this)
{
    setObjectName(QStringLiteral("problems"));
    setAccessibleName(tr("Problems of the job"));
    setRootIsDecorated(false);
    setHeaderLabels({tr("Problem"), tr("Setting"), tr("Field")});
    header()->setSectionResizeMode(COLUMN_TEXT, QHeaderView::Stretch);
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemActivated, this, &ProblemsPane::choose);
    connect(session, &JobSession::jobReplaced, &m_refresh, &PacedRefresh::requestAtOnce);
    connect(session, &JobSession::structureChanged, &m_refresh, &PacedRefresh::requestAtOnce);
    connect(session, &JobSession::settingChanged, &m_refresh, &PacedRefresh::request);
}

void ProblemsPane::refresh()
{
    const QList<JobProblem> problems =
        m_finder.problems(JEDVEPLUGIN::ResourceDescription::readAllResourceFiles());
    if (std::equal(problems.cbegin(), problems.cend(), m_shown.cbegin(), m_shown.cend(), isSame))
        return;
    m_shown = problems;
    clear();
    for (const JobProblem& found : problems) {
        const Problem& problem = found.problem;
        auto* const item = new QTreeWidgetItem(
            this, {problem.text, found.place, fieldText(problem.parameterSet, problem.field)});
        item->setIcon(COLUMN_TEXT, style()->standardIcon(pictureOf(problem.severity)));
        item->setToolTip(COLUMN_TEXT, problem.text);
        item->setData(COLUMN_TEXT, Qt::AccessibleTextRole,
                      tr("%1: %2").arg(Session::severityText(problem.severity), problem.text));
        item->setData(COLUMN_TEXT, ROLE_SUBJOB, found.subjob);
        item->setData(COLUMN_TEXT, ROLE_SETTING, QVariant::fromValue(found.setting));
        item->setData(COLUMN_TEXT, ROLE_SET, problem.parameterSet);
        item->setData(COLUMN_TEXT, ROLE_FIELD, problem.field);
    }
    emit countChanged(problemCount());
}

void ProblemsPane::choose(QTreeWidgetItem* item)
{
    if (auto* const setting = item->data(COLUMN_TEXT, ROLE_SETTING).value<ISubSetting*>())
        emit problemChosen(setting, item->data(COLUMN_TEXT, ROLE_SET).toString(),
                           item->data(COLUMN_TEXT, ROLE_FIELD).toString());
    else
        emit subjobChosen(item->data(COLUMN_TEXT, ROLE_SUBJOB).toInt());
}
