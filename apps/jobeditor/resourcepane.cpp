#include "resourcepane.h"

#include <algorithm>
#include <isubsetting.h>
#include <QHeaderView>
#include <QStyle>
#include <resourcedescription.h>
#include <session/jobsession.h>
#include <session/receiveruse.h>

using Session::JobSession;
using Session::PacedRefresh;
using Session::ReceiverUse;

namespace {
enum Column { COLUMN_RECEIVER, COLUMN_TYPE, COLUMN_TAKEN, COLUMN_LEFT, COLUMN_TAKERS };
constexpr int ROLE_SUBJOB = Qt::UserRole;

QString leftText(const ReceiverUse& use)
{
    if (!use.isOffered)
        return ResourcePane::tr("not offered by the installation");
    return use.left < 0 ? ResourcePane::tr("%1 too many").arg(-use.left) : QString::number(use.left);
}

QString takenText(const ReceiverUse& use)
{
    return use.isOffered ? ResourcePane::tr("%1 of %2").arg(use.taken).arg(use.quantity)
                         : QString::number(use.taken);
}

QStringList namesOf(const QVector<int>& subjobs, const JobSession& session)
{
    QStringList names;
    for (const int subjob : subjobs) {
        const JobSession::TopLevel& top = session.topLevel(subjob);
        names.append(top.setting ? top.setting->getDisplayName() : top.subjob.GetName());
    }
    return names;
}
} // namespace

ResourcePane::ResourcePane(JobSession* session, QWidget* parent)
    : QTreeWidget(parent)
    , m_session(session)
    , m_refresh([this] { refresh(); }, this)
{
    setObjectName(QStringLiteral("resources"));
    setAccessibleName(tr("Receivers that the job takes"));
    setRootIsDecorated(false);
    setHeaderLabels({tr("Receiver"), tr("Type"), tr("Taken"), tr("Left"), tr("Sub-jobs")});
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemActivated, this, &ResourcePane::choose);
    connect(session, &JobSession::jobReplaced, &m_refresh, &PacedRefresh::requestAtOnce);
    connect(session, &JobSession::structureChanged, &m_refresh, &PacedRefresh::requestAtOnce);
    connect(session, &JobSession::settingChanged, &m_refresh, &PacedRefresh::request);
}

void ResourcePane::refresh()
{
    clear();
    QVector<ReceiverUse> uses =
        Session::receiverUses(*m_session, JEDVEPLUGIN::ResourceDescription::readAllResourceFiles());
    std::stable_partition(uses.begin(), uses.end(),
                          [](const ReceiverUse& use) { return !use.takers.isEmpty(); });
    for (const ReceiverUse& use : qAsConst(uses)) {
        const QStringList takers = namesOf(use.takers, *m_session);
        auto* const item =
            new QTreeWidgetItem(this, {use.name.isEmpty() ? use.baseResource : use.name, use.type,
                                       takenText(use), leftText(use), takers.join(QLatin1String(", "))});
        item->setToolTip(COLUMN_RECEIVER, use.toText());
        item->setToolTip(COLUMN_TAKERS, takers.join(QLatin1Char('\n')));
        item->setData(COLUMN_RECEIVER, ROLE_SUBJOB, use.takers.isEmpty() ? -1 : use.takers.last());
        if (!use.isOffered || use.left < 0)
            item->setIcon(COLUMN_LEFT, style()->standardIcon(QStyle::SP_MessageBoxWarning));
    }
}

void ResourcePane::choose(QTreeWidgetItem* item)
{
    const int subjob = item->data(COLUMN_RECEIVER, ROLE_SUBJOB).toInt();
    if (subjob >= 0)
        emit subjobChosen(subjob);
}
