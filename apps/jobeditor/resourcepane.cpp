#include "resourcepane.h"

#include <jedsubsettingfactory.h>
#include <QHeaderView>
#include <QMap>
#include <QPair>
#include <QStyle>
#include <QTimer>
#include <resourcedescription.h>
#include <session/jobsession.h>
#include <utility>

using JEDVEPLUGIN::ResourceDescription;
using JEDVEPLUGIN::ResourceUse;
using Session::JobSession;

namespace {
enum Column { COLUMN_RECEIVER, COLUMN_TYPE, COLUMN_TAKEN, COLUMN_LEFT };

using Receiver = QPair<QString, QString>; // Type and base resource.

QMap<Receiver, qint64> takenReceivers(const JobSession& session)
{
    QMap<Receiver, qint64> result;
    for (const JobSession::Factory* factory : session.activeFactories()) {
        for (const ResourceUse& use : factory->resourceUse())
            result[{use.type, use.baseResource}] += use.count;
    }
    return result;
}
} // namespace

ResourcePane::ResourcePane(JobSession* session, QWidget* parent)
    : QTreeWidget(parent)
    , m_session(session)
{
    setObjectName(QStringLiteral("resources"));
    setAccessibleName(tr("Receivers that the job takes"));
    setRootIsDecorated(false);
    setHeaderLabels({tr("Receiver"), tr("Type"), tr("Taken"), tr("Left")});
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(session, &JobSession::jobReplaced, this, &ResourcePane::refreshSoon);
    connect(session, &JobSession::structureChanged, this, &ResourcePane::refreshSoon);
    connect(session, &JobSession::settingChanged, this, &ResourcePane::refreshSoon);
}

void ResourcePane::refreshSoon()
{
    if (!std::exchange(m_isRefreshPending, true))
        QTimer::singleShot(0, this, &ResourcePane::refresh);
}

void ResourcePane::refresh()
{
    m_isRefreshPending = false;
    clear();
    QMap<Receiver, qint64> taken = takenReceivers(*m_session);
    for (const auto& description : ResourceDescription::readAllResourceFiles()) {
        const auto use = taken.find({description->getType(), description->getBaseResource()});
        if (use == taken.end())
            continue;
        const qint64 left = qint64(description->getQuantity()) - *use;
        auto* const item =
            new QTreeWidgetItem(this, {description->getName(), description->getType(),
                                       tr("%1 of %2").arg(*use).arg(description->getQuantity()),
                                       left < 0 ? tr("%1 too many").arg(-left) : QString::number(left)});
        if (left < 0)
            item->setIcon(COLUMN_LEFT, style()->standardIcon(QStyle::SP_MessageBoxWarning));
        taken.erase(use);
    }
    for (auto missing = taken.cbegin(); missing != taken.cend(); ++missing) {
        auto* const item =
            new QTreeWidgetItem(this, {missing.key().second, missing.key().first, QString::number(*missing),
                                       tr("not offered by the installation")});
        item->setIcon(COLUMN_LEFT, style()->standardIcon(QStyle::SP_MessageBoxWarning));
    }
}
