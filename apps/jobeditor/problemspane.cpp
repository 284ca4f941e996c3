#include "problemspane.h"

#include <isubsetting.h>
#include <QHeaderView>
#include <QStyle>
#include <QTimer>
#include <session/jobsession.h>
#include <utility>

using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;
using Session::JobSession;

namespace {
enum Column { COLUMN_TEXT, COLUMN_SETTING, COLUMN_FIELD };
enum Role { ROLE_SETTING = Qt::UserRole, ROLE_SET, ROLE_FIELD };

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
    for (int i = 0; i < m_session->topLevelCount(); ++i) {
        const JobSession::TopLevel& top = m_session->topLevel(i);
        if (top.setting)
            collect(top.setting, QString());
    }
    emit countChanged(problemCount());
}

void ProblemsPane::collect(ISubSetting* setting, const QString& place)
{
    const QString here =
        place.isEmpty() ? setting->getDisplayName() : tr("%1, %2").arg(place, setting->getDisplayName());
    for (const Problem& problem : setting->problems()) {
        auto* const item = new QTreeWidgetItem(this, {problem.text, here, problem.field});
        item->setIcon(COLUMN_TEXT, style()->standardIcon(pictureOf(problem.severity)));
        item->setToolTip(COLUMN_TEXT, problem.text);
        item->setData(COLUMN_TEXT, ROLE_SETTING, QVariant::fromValue(setting));
        item->setData(COLUMN_TEXT, ROLE_SET, problem.parameterSet);
        item->setData(COLUMN_TEXT, ROLE_FIELD, problem.field);
    }
    for (int i = 0; i < setting->childCount(); ++i)
        collect(setting->child(i), here);
}

void ProblemsPane::choose(QTreeWidgetItem* item)
{
    emit problemChosen(item->data(COLUMN_TEXT, ROLE_SETTING).value<ISubSetting*>(),
                       item->data(COLUMN_TEXT, ROLE_SET).toString(),
                       item->data(COLUMN_TEXT, ROLE_FIELD).toString());
}
