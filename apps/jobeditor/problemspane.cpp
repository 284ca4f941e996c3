#include "problemspane.h"

#include <isubsetting.h>
#include <jobxml/settings.h>
#include <QHeaderView>
#include <QStyle>
#include <QTimer>
#include <reportlayer/fieldaccess.h>
#include <resourcedescription.h>
#include <session/jobproblems.h>
#include <session/jobsession.h>
#include <utility>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;
using Session::JobProblem;
using Session::JobSession;

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
    , m_session(session)
{
    setObjectName(QStringLiteral("problems"));
    setAccessibleName(tr("Problems of the job"));
    setRootIsDecorated(false);
    setHeaderLabels({tr("Problem"), tr("Setting"), tr("Field")});
    header()->setSectionResizeMode(COLUMN_TEXT, QHeaderView::Stretch);
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemActivated, this, &ProblemsPane::choose);
    connect(session, &JobSession::jobReplaced, this, &ProblemsPane::refreshSoon);
    connect(session, &JobSession::structureChanged, this, &ProblemsPane::refreshSoon);
    connect(session, &JobSession::settingChanged, this, &ProblemsPane::refreshSoon);
}

void ProblemsPane::refreshSoon()
{
    if (!std::exchange(m_isRefreshPending, true))
        QTimer::singleShot(0, this, &ProblemsPane::refresh);
}

void ProblemsPane::refresh()
{
    m_isRefreshPending = false;
    clear();
    for (const JobProblem& found :
         Session::jobProblems(*m_session, JEDVEPLUGIN::ResourceDescription::readAllResourceFiles())) {
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
