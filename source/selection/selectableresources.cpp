#include "common/tracing_p.h"
#include "selectableresourcemodel_p.h"

#include <algorithm>
#include <limits>

namespace JEDVEPLUGIN {

namespace {

using Private = SelectableResourceModelPrivate;

QString resourceKey(const QString& type, const QString& baseResource)
{
    return QStringLiteral("%1:%2").arg(type, baseResource);
}

bool isAncestor(const Private::ResourcePtr& resource, Private::ResourcePtr descendant)
{
    while (descendant && descendant != resource)
        descendant = descendant->parent.lock();
    return descendant != nullptr;
}

/// Hangs the resource below its parent, or says why it stays a root.
void attachToParent(const Private::ResourcePtr& resource,
                    const QMap<QString, Private::ResourcePtr>& resources)
{
    const QString type = resource->description->getType();
    const QString base = resource->description->getBaseResource();
    const QString parentBase = resource->description->getParentBaseResource();
    if (parentBase.isEmpty())
        return;
    if (parentBase == base) {
        traceError(
            TracePoints::RESOURCE_IS_ITS_OWN_PARENT,
            QStringLiteral("SelectableResourceModel::setResources() - configuration error base resource "
                           "%1 - %2 is it's own parent")
                .arg(type, base));
        return;
    }
    const Private::ResourcePtr parent = resources.value(resourceKey(type, parentBase));
    const bool closesRing = !resource->children.isEmpty() && isAncestor(resource, parent);
    if (!parent || closesRing) {
        traceError(
            TracePoints::RESOURCE_WITHOUT_ITS_PARENT,
            QStringLiteral("SelectableResourceModel::setResources() - configuration error base resource "
                           "%1 - %2 has a parent %3 which is not available")
                .arg(type, base, parentBase));
        return;
    }
    parent->children.append(resource);
    resource->parent = parent;
}

} // namespace

int saturated(qint64 number)
{
    return static_cast<int>(
        qBound<qint64>(std::numeric_limits<int>::min(), number, std::numeric_limits<int>::max()));
}

SelectableResourceModelPrivate::~SelectableResourceModelPrivate()
{
    clear();
}

void SelectableResourceModelPrivate::setResources(const QList<DescriptionPtr>& descriptions)
{
    clear();
    ResourceMap resources;
    for (const DescriptionPtr& description : descriptions) {
        if (!description)
            continue;
        auto resource = std::make_shared<SelectableResource>();
        resource->description = description;
        resources.insert(resourceKey(description->getType(), description->getBaseResource()), resource);
    }
    for (const ResourcePtr& resource : qAsConst(resources))
        attachToParent(resource, resources);
    while (!resources.isEmpty()) {
        ResourcePtr root = resources.first();
        while (ResourcePtr parent = root->parent.lock())
            root = parent;
        addResource(root, &resources);
    }
}

int SelectableResourceModelPrivate::findResourceIndex(const DescriptionPtr& description) const
{
    return m_rowsByDescription.value(description.get(), -1);
}

const SelectableResourceModelPrivate::SelectableResource*
SelectableResourceModelPrivate::findResource(const DescriptionPtr& description) const
{
    const int row = findResourceIndex(description);
    return row < 0 ? nullptr : &at(row);
}

int SelectableResourceModelPrivate::getMaxCount(int row) const
{
    if (!at(row).enabled)
        return 0;
    qint64 minimum = m_balances[row].remaining;
    for (int ancestor = parentRow(row); ancestor >= 0; ancestor = parentRow(ancestor))
        minimum = std::min(minimum, m_balances[ancestor].remaining);
    return saturated(minimum + at(row).count);
}

int SelectableResourceModelPrivate::getCachedMaxCount(int row) const
{
    if (!m_chainMinimaValid) {
        m_chainMinima.resize(m_rows.size());
        for (int each = 0; each < rowCount(); ++each) {
            const auto [own, parent] = m_balances[each];
            m_chainMinima[each] = parent < 0 ? own : std::min(own, m_chainMinima[parent]);
        }
        m_chainMinimaValid = true;
    }
    return at(row).enabled ? saturated(m_chainMinima[row] + at(row).count) : 0;
}

bool SelectableResourceModelPrivate::isCreateable(int row) const
{
    const int maximum = getCachedMaxCount(row); // 0 if it is disabled
    return maximum >= 1 && at(row).count < maximum;
}

std::vector<qint64> SelectableResourceModelPrivate::occupiedCounts() const
{
    std::vector<qint64> counts(m_rows.size(), 0);
    for (int row = rowCount() - 1; row >= 0; --row) {
        counts[row] += at(row).count;
        if (parentRow(row) >= 0)
            counts[parentRow(row)] += counts[row];
    }
    return counts;
}

bool SelectableResourceModelPrivate::setCount(int row, int count)
{
    if (count < 0 || count > getMaxCount(row))
        return false;
    storeCount(row, count);
    return true;
}

void SelectableResourceModelPrivate::selectMaximum(int row)
{
    const int maximum = getMaxCount(row);
    if (maximum >= 0)
        storeCount(row, maximum);
}

bool SelectableResourceModelPrivate::setReservationCount(int row, int count)
{
    SelectableResource& resource = *m_rows[row];
    if (count < 0 || count > resource.description->getQuantity())
        return false;
    take(row, qint64(count) - resource.reservationCount);
    resource.reservationCount = count;
    // The maximum may be below 0, and so is the count then: both show by how much too many are promised.
    const int maximum = getMaxCount(row);
    if (maximum < resource.count)
        storeCount(row, maximum);
    return true;
}

void SelectableResourceModelPrivate::setEnabled(int row, bool enabled)
{
    m_rows[row]->enabled = enabled;
    if (!enabled)
        storeCount(row, 0);
}

void SelectableResourceModelPrivate::clear()
{
    // A long chain of resources would otherwise be destroyed by recursion.
    for (const ResourcePtr& resource : m_rows)
        resource->children.clear();
    m_rows.clear();
    m_balances.clear();
    m_rowsByDescription.clear();
    m_chainMinimaValid = false;
}

void SelectableResourceModelPrivate::addResource(const ResourcePtr& root, ResourceMap* resources)
{
    struct Pending
    {
        ResourcePtr resource;
        int parentRow;
    };
    std::vector<Pending> pending{{root, -1}};
    while (!pending.empty()) {
        const Pending next = pending.back();
        pending.pop_back();
        const ResourceDescription& description = *next.resource->description;
        const int row = rowCount();
        m_rows.push_back(next.resource);
        m_balances.push_back({description.getQuantity(), next.parentRow});
        m_rowsByDescription.insert(&description, row);
        resources->remove(resourceKey(description.getType(), description.getBaseResource()));
        const QList<ResourcePtr>& children = next.resource->children;
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            pending.push_back({*child, row});
    }
}

void SelectableResourceModelPrivate::storeCount(int row, int count)
{
    if (count == at(row).count)
        return;
    take(row, qint64(count) - at(row).count);
    m_rows[row]->count = count;
}

void SelectableResourceModelPrivate::take(int row, qint64 instances)
{
    for (int each = row; each >= 0; each = parentRow(each))
        m_balances[each].remaining -= instances;
    m_chainMinimaValid = false;
}

} // namespace JEDVEPLUGIN
