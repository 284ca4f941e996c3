#include "mappanes.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace {
constexpr int WAIT_TIME = 100; // ms behind a change
enum Role { ROLE_CLIENT = Qt::UserRole, ROLE_LAYER, ROLE_KEY };
} // namespace

LayersPane::LayersPane(MapScene* scene, QWidget* parent)
    : QTreeWidget(parent)
    , m_scene(scene)
{
    setObjectName(QStringLiteral("Layers"));
    setAccessibleName(tr("Layers"));
    header()->hide();
    connect(m_scene, &MapScene::layersChanged, this, &LayersPane::fill);
    connect(this, &QTreeWidget::itemChanged, this, &LayersPane::applyMark);
}

void LayersPane::keyPressEvent(QKeyEvent* event)
{
    const QTreeWidgetItem* const item = currentItem();
    if (event->key() == Qt::Key_Delete && item)
        m_scene->eraseLayer(item->data(0, ROLE_CLIENT).toInt(), item->data(0, ROLE_LAYER).toInt());
    else
        QTreeWidget::keyPressEvent(event);
}

void LayersPane::fill()
{
    const QSignalBlocker quiet(this);
    clear();
    QHash<int, QTreeWidgetItem*> clients;
    for (const auto& layer : m_scene->layers()) {
        QTreeWidgetItem*& parent = clients[layer->client];
        if (!parent)
            parent = new QTreeWidgetItem(this, {m_scene->clientName(layer->client)});
        auto* const item =
            new QTreeWidgetItem(parent, {layer->name.isEmpty() ? tr("Layer without a name") : layer->name});
        item->setCheckState(0, layer->isVisible ? Qt::Checked : Qt::Unchecked);
        item->setData(0, ROLE_CLIENT, layer->client);
        item->setData(0, ROLE_LAYER, layer->id);
    }
    expandAll();
}

void LayersPane::applyMark(const QTreeWidgetItem* item)
{
    m_scene->setLayerVisible(item->data(0, ROLE_CLIENT).toInt(), item->data(0, ROLE_LAYER).toInt(),
                             item->checkState(0) == Qt::Checked);
}

ObjectsPane::ObjectsPane(MapScene* scene, QWidget* parent)
    : QListWidget(parent)
    , m_scene(scene)
{
    setObjectName(QStringLiteral("Objects"));
    setAccessibleName(tr("Objects"));
    setSelectionMode(ExtendedSelection);
    setUniformItemSizes(true);
    m_wait.setSingleShot(true);
    m_wait.setInterval(WAIT_TIME);
    connect(&m_wait, &QTimer::timeout, this, &ObjectsPane::fill);
    // Not started again and again: it is to end, however many changes there are.
    connect(m_scene, &MapScene::objectsChanged, this, [this] {
        if (!m_wait.isActive())
            m_wait.start();
    });
    connect(m_scene, &MapScene::selectionChanged, this, &ObjectsPane::followMap);
    connect(this, &QListWidget::itemSelectionChanged, this, &ObjectsPane::leadMap);
    connect(this, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        emit m_scene->showRequested(item->data(ROLE_KEY).toULongLong());
    });
}

void ObjectsPane::fill()
{
    const QSignalBlocker quiet(this);
    const MapKey current = currentItem() ? currentItem()->data(ROLE_KEY).toULongLong() : 0;
    clear();
    const QVector<MapKey> keys = m_scene->visibleGroups();
    for (const MapKey key : keys) {
        const QString name = m_scene->group(key)->name;
        auto* const item = new QListWidgetItem(name.isEmpty() ? tr("Object without a name") : name, this);
        item->setData(ROLE_KEY, key);
    }
    setCurrentRow(keys.indexOf(current), QItemSelectionModel::NoUpdate);
    followMap();
}

void ObjectsPane::leadMap()
{
    QSet<MapKey> keys;
    for (const QListWidgetItem* item : selectedItems()) {
        // It may be gone, and the list not know it yet.
        const MapKey key = item->data(ROLE_KEY).toULongLong();
        if (m_scene->group(key))
            keys.insert(key);
    }
    m_scene->select(keys);
}

void ObjectsPane::followMap()
{
    const QSignalBlocker quiet(this);
    QItemSelection selection;
    for (int row = 0; row < count(); ++row) {
        if (m_scene->selection().contains(item(row)->data(ROLE_KEY).toULongLong()))
            selection.append(QItemSelectionRange(indexFromItem(item(row))));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!selection.isEmpty())
        scrollTo(selection.first().topLeft());
}
