#pragma once

#include "resourcedescription.h"

#include <QAbstractTableModel>
#include <QMap>
#include <QStandardItemModel>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

/// The table of selectable resources in its most straightforward form: each maximum is counted afresh from the whole
/// subtrees of all ancestors. Yardstick of the benchmark and oracle of the random test.
class NaiveResourceModel : public QAbstractTableModel
{
public:
    using DescriptionPtr = std::shared_ptr<JEDVEPLUGIN::ResourceDescription>;

    struct Resource
    {
        QList<std::shared_ptr<Resource>> children;
        std::weak_ptr<Resource> parent;
        DescriptionPtr description;
        int count = 0;
        bool enabled = true;
        int reservationCount = 0;
    };
    using ResourcePtr = std::shared_ptr<Resource>;

    explicit NaiveResourceModel(const QList<DescriptionPtr>& descriptions)
    {
        QMap<QString, ResourcePtr> resources;
        for (const DescriptionPtr& description : descriptions) {
            auto resource = std::make_shared<Resource>();
            resource->description = description;
            resources[description->getType() + ':' + description->getBaseResource()] = resource;
        }
        for (const ResourcePtr& resource : qAsConst(resources)) {
            const QString parentBase = resource->description->getParentBaseResource();
            const ResourcePtr parent = resources.value(resource->description->getType() + ':' + parentBase);
            bool isRing = false;
            for (ResourcePtr each = parent; each; each = each->parent.lock())
                isRing = isRing || each == resource;
            if (parentBase.isEmpty() || !parent || isRing)
                continue;
            parent->children.append(resource);
            resource->parent = parent;
        }
        const std::function<void(const ResourcePtr&)> add = [&](const ResourcePtr& resource) {
            m_rows.append(resource);
            for (const ResourcePtr& child : qAsConst(resource->children))
                add(child);
        };
        QList<ResourcePtr> done;
        for (ResourcePtr resource : qAsConst(resources)) {
            while (ResourcePtr parent = resource->parent.lock())
                resource = parent;
            if (done.contains(resource))
                continue;
            done.append(resource);
            add(resource);
        }
    }

    static qint64 usage(const Resource* requesting, const Resource* node)
    {
        qint64 sum = (node == requesting ? 0 : node->count) + node->reservationCount;
        for (const ResourcePtr& child : node->children)
            sum += usage(requesting, child.get());
        return sum;
    }
    static int maximum(const ResourcePtr& resource)
    {
        if (!resource->enabled)
            return 0;
        qint64 minimum = std::numeric_limits<qint64>::max();
        for (ResourcePtr each = resource; each; each = each->parent.lock())
            minimum = std::min(minimum, each->description->getQuantity() - usage(resource.get(), each.get()));
        return static_cast<int>(minimum);
    }
    static qint64 occupied(const ResourcePtr& resource)
    {
        qint64 sum = resource->count;
        for (const ResourcePtr& child : qAsConst(resource->children))
            sum += occupied(child);
        return sum;
    }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_rows.size();
    }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : 3;
    }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override
    {
        if (role != Qt::DisplayRole && role != Qt::EditRole)
            return QVariant();
        const ResourcePtr& resource = m_rows.at(index.row());
        if (index.column() == 0)
            return resource->description->getBaseResource();
        return index.column() == 1 ? resource->count : maximum(resource);
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        Qt::ItemFlags flags = Qt::ItemIsSelectable;
        if (m_rows.at(index.row())->enabled && maximum(m_rows.at(index.row())) > 0) {
            flags |= Qt::ItemIsEnabled;
            if (index.column() == 1)
                flags |= Qt::ItemIsEditable;
        }
        return flags;
    }
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override
    {
        const ResourcePtr& resource = m_rows.at(index.row());
        const int count = value.toInt();
        if (index.column() != 1 || role != Qt::EditRole || count == resource->count || count < 0 ||
            count > maximum(resource))
            return false;
        resource->count = count;
        refresh(index.row());
        return true;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Vertical || role != Qt::CheckStateRole)
            return QVariant();
        return m_rows.at(section)->count >= 1 ? 2 : 0;
    }
    bool setHeaderData(int section, Qt::Orientation, const QVariant& value, int) override
    {
        const ResourcePtr& resource = m_rows.at(section);
        if (value.toInt() == 2 && resource->count == 0) {
            if (maximum(resource) < 1)
                return false;
            resource->count = 1;
        } else {
            if (maximum(resource) < 0)
                return false;
            resource->count = 0;
        }
        refresh(section);
        return true;
    }
    bool selectResource(const DescriptionPtr& description, int n)
    {
        for (int row = 0; row < m_rows.size(); ++row) {
            const ResourcePtr& resource = m_rows.at(row);
            if (resource->description == description)
                return setData(index(row, 1), std::min(resource->count + n, maximum(resource)), Qt::EditRole);
        }
        return false;
    }
    bool setReservationCount(int row, int n)
    {
        const ResourcePtr& resource = m_rows.at(row);
        if (resource->reservationCount == n || n < 0 || n > resource->description->getQuantity())
            return false;
        resource->reservationCount = n;
        if (maximum(resource) < resource->count)
            resource->count = maximum(resource);
        return true;
    }
    void setEnabled(int row, bool enabled)
    {
        m_rows.at(row)->enabled = enabled;
        if (!enabled)
            m_rows.at(row)->count = 0;
    }
    void selectAllOnce()
    {
        for (const ResourcePtr& resource : qAsConst(m_rows)) {
            if (maximum(resource) >= 1)
                resource->count = 1;
        }
        refresh(-1);
    }
    void selectAllMax()
    {
        for (const ResourcePtr& resource : qAsConst(m_rows)) {
            const int most = maximum(resource);
            if (most >= 0)
                resource->count = most;
        }
        refresh(-1);
    }
    void deselectAll()
    {
        for (const ResourcePtr& resource : qAsConst(m_rows)) {
            if (maximum(resource) >= 0)
                resource->count = 0;
        }
        refresh(-1);
    }
    QStandardItemModel* hierarchicalModel() const
    {
        auto* model = new QStandardItemModel;
        for (const ResourcePtr& resource : m_rows) {
            if (resource->parent.expired())
                model->appendRow(items(resource));
        }
        return model;
    }
    const ResourcePtr& at(int row) const { return m_rows.at(row); }

private:
    void refresh(int row)
    {
        emit dataChanged(index(0, 0), index(rowCount() - 1, 2));
        emit headerDataChanged(Qt::Vertical, 0, row < 0 ? rowCount() - 1 : row);
    }
    static QList<QStandardItem*> items(const ResourcePtr& resource)
    {
        const std::vector<QString> texts = {resource->description->getBaseResource(),
                                            QString::number(resource->count),
                                            QString::number(maximum(resource)),
                                            QString::number(resource->reservationCount),
                                            QString::number(occupied(resource)),
                                            resource->description->getType(),
                                            QString::number(resource->description->getQuantity()),
                                            resource->enabled ? "true" : "false"};
        QList<QStandardItem*> row;
        for (const QString& text : texts) {
            row << new QStandardItem(text);
            row.last()->setEditable(false);
        }
        for (const ResourcePtr& child : qAsConst(resource->children))
            row.first()->appendRow(items(child));
        return row;
    }

    QList<ResourcePtr> m_rows;
};
