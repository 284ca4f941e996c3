#include "receiveruse.h"

#include "jobsession.h"

#include <algorithm>
#include <jedsubsettingfactory.h>
#include <kit/subjobheader.h>
#include <QHash>
#include <QPair>
#include <resourcedescription.h>

using JEDVEPLUGIN::ResourceUse;

namespace {
// Counts what is taken, and adds it up along the way from a part to its whole.
class Counter
{
public:
    explicit Counter(const Session::JobComposer::Resources& resources)
    {
        for (const auto& resource : resources) {
            const int row = rowOf(resource->getType(), resource->getBaseResource());
            if (m_uses[row].isOffered)
                continue;
            m_uses[row].isOffered = true;
            m_uses[row].name = resource->getName();
            m_uses[row].quantity = resource->getQuantity();
            m_parents[row] = resource->getParentBaseResource();
        }
    }

    void take(const ResourceUse& use, int subjob)
    {
        const int row = rowOf(use.type, use.baseResource);
        m_uses[row].taken += use.count;
        for (const int whole : chainOf(row)) {
            QVector<int>& takers = m_uses[whole].takers;
            const auto place = std::lower_bound(takers.begin(), takers.end(), subjob);
            if (place == takers.end() || *place != subjob)
                takers.insert(place, subjob);
        }
    }

    QVector<Session::ReceiverUse> result()
    {
        for (int row = 0; row < m_uses.size(); ++row) {
            for (const int whole : chainOf(row))
                m_uses[whole].occupied += m_uses.at(row).taken;
        }
        for (int row = 0; row < m_uses.size(); ++row) {
            m_uses[row].left = m_uses.at(row).quantity - m_uses.at(row).occupied;
            for (const int whole : chainOf(row))
                m_uses[row].left =
                    std::min(m_uses.at(row).left, m_uses.at(whole).quantity - m_uses.at(whole).occupied);
        }
        return m_uses;
    }

private:
    int rowOf(const QString& type, const QString& baseResource)
    {
        const auto known = m_rows.constFind({type, baseResource});
        if (known != m_rows.constEnd())
            return *known;
        Session::ReceiverUse use;
        use.type = type;
        use.baseResource = baseResource;
        m_uses.append(use);
        m_parents.append(QString());
        return *m_rows.insert({type, baseResource}, m_uses.size() - 1);
    }

    // The receiver itself, then what it is a part of, which is of the same type; a circle ends where it began.
    QVector<int> chainOf(int row) const
    {
        QVector<int> chain;
        while (row >= 0 && !chain.contains(row)) {
            chain.append(row);
            row = m_rows.value({m_uses.at(row).type, m_parents.at(row)}, -1);
        }
        return chain;
    }

    QVector<Session::ReceiverUse> m_uses;
    QVector<QString> m_parents; // Base resources, beside m_uses.
    QHash<QPair<QString, QString>, int> m_rows;
};
} // namespace

namespace Session {

QString ReceiverUse::toText() const
{
    const QString key = type + QLatin1Char('/') + baseResource;
    return name.isEmpty() ? key : QStringLiteral("%1 (%2)").arg(name, key);
}

QVector<ReceiverUse> receiverUses(const JobSession& session, const JobComposer::Resources& resources)
{
    Counter counter(resources);
    QHash<const JobSession::Setting*, int> places;
    for (int i = 0; i < session.topLevelCount(); ++i)
        places.insert(session.topLevel(i).setting, i);
    for (const JobSession::Factory* factory : session.activeFactories()) {
        for (const ResourceUse& use : factory->resourceUse())
            counter.take(use, places.value(use.setting, -1));
    }
    for (int i = 0; i < session.topLevelCount(); ++i) {
        const JobSession::TopLevel& top = session.topLevel(i);
        for (const ResourceUse& use :
             top.setting ? QList<ResourceUse>() : PluginKit::resourcesOf(top.subjob, nullptr))
            counter.take(use, i);
    }
    return counter.result();
}

} // namespace Session
