#include "abstractsubsetting.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

namespace JEDVEPLUGIN {

namespace {

using Children = QList<ISubSetting*>;
using TypeIndex = QHash<QString, Children>;

const QLatin1String GENERAL_SETTINGS("GeneralSettings");
const int MAX_STRIDES = 64; // beyond that many groups, comparing every entry is faster

// The place behind the last child of a group, the end of the list if the group is empty. Children of one type
// usually stand together, so the walk from the end takes whole groups in its stride. It misses its aim only
// where moves have torn groups apart, and gives up where there are very many.
int endOfGroup(const Children& children, const TypeIndex& typeIndex, const Children& group)
{
    if (group.isEmpty())
        return children.size();
    ISubSetting* last = group.last();
    int place = children.size() - 1;
    for (int strides = 0; strides < MAX_STRIDES && place >= 0; ++strides) {
        if (children.at(place) == last)
            return place + 1;
        const auto other = typeIndex.constFind(children.at(place)->getSettingType());
        place -= other == typeIndex.constEnd() ? 1 : qMax(1, other->size());
    }
    return children.lastIndexOf(last) + 1;
}

// QList::insert() mostly shifts all that comes behind; this shifts the shorter side.
void insertAt(Children& list, int place, ISubSetting* entry)
{
    if (place < list.size() / 2) {
        list.prepend(entry);
        list.move(0, place);
    } else {
        list.append(entry);
        list.move(list.size() - 1, place);
    }
}

Children ofType(const Children& children, const QString& type)
{
    Children group;
    for (ISubSetting* child : children) {
        if (child->getSettingType() == type)
            group.append(child);
    }
    return group;
}

} // namespace

AbstractSubSetting::AbstractSubSetting(const AbstractSubSetting& other) = default;

AbstractSubSetting& AbstractSubSetting::operator=(const AbstractSubSetting& other) = default;

AbstractSubSetting::~AbstractSubSetting()
{
    // The list stays as it is meanwhile: a child's destructor may still take itself or a later sibling out.
    int place = 0;
    while (place < children.size()) {
        ISubSetting* child = children.at(place);
        delete child;
        if (place < children.size() && children.at(place) == child)
            ++place;
    }
    children.clear();
    typeIndex.clear();
}

bool AbstractSubSetting::overwriteTreeColor() const
{
    return false;
}

const QColor& AbstractSubSetting::getTreeColor() const
{
    static const QColor color(255, 255, 0, 255);
    return color;
}

ISubSetting* AbstractSubSetting::child(int index)
{
    return index < childCount() ? children.value(index) : nullptr;
}

int AbstractSubSetting::childIndex(ISubSetting* child) const
{
    return children.indexOf(child);
}

int AbstractSubSetting::childCount() const
{
    return children.size();
}

ISubSetting* AbstractSubSetting::parent() const
{
    return m_parent;
}

void AbstractSubSetting::setParent(ISubSetting* parent)
{
    m_parent = parent;
}

int AbstractSubSetting::row()
{
    ISubSetting* above = parent();
    return above ? above->childIndex(this) : 0;
}

void AbstractSubSetting::appendSubsetting(ISubSetting* child)
{
    if (!child)
        return;
    Children& group = typeIndex[child->getSettingType()];
    insertAt(children, endOfGroup(children, typeIndex, group), child);
    group.append(child);
}

void AbstractSubSetting::removeSubSetting(ISubSetting* child)
{
    if (!child)
        return;
    children.removeAll(child);
    const auto group = typeIndex.find(child->getSettingType());
    if (group == typeIndex.end())
        return;
    group->removeAll(child);
    if (group->isEmpty())
        typeIndex.erase(group);
}

void AbstractSubSetting::removeAllSubSettings()
{
    children.clear();
    typeIndex.clear();
}

int AbstractSubSetting::typeCount(const QString& type) const
{
    return typeIndex.value(type).size();
}

int AbstractSubSetting::settingTypePosition(const QString& type, ISubSetting* setting) const
{
    return typeIndex.value(type).indexOf(setting);
}

ISubSetting* AbstractSubSetting::settingAtTypePosition(const QString& type, int position) const
{
    return position < typeCount(type) ? typeIndex.value(type).value(position) : nullptr;
}

QPixmap* AbstractSubSetting::getPixmap() const
{
    return nullptr;
}

bool AbstractSubSetting::isDragEnabled() const
{
    return true;
}

bool AbstractSubSetting::isDropEnabled() const
{
    return true;
}

QString AbstractSubSetting::getMimeText(int) const
{
    return QString();
}

bool AbstractSubSetting::supportsMimeText() const
{
    return false;
}

bool AbstractSubSetting::canMoveChild(ISubSetting* child) const
{
    return !isReadOnly() && child && child->parent() == this;
}

void AbstractSubSetting::moveChild(int from, int to)
{
    const int count = qMin(childCount(), children.size());
    if (count < 2)
        return;
    from = qBound(0, from, count - 1);
    if (from < to)
        --to; // the entry that is taken out shifts the later positions
    to = qBound(0, to, count - 1);
    if (from == to)
        return;
    ISubSetting* movedChild = child(from);
    if (!movedChild)
        return;
    children.move(from, to);
    const QString type = movedChild->getSettingType();
    typeIndex[type] = ofType(children, type);
    movedChild->moved();
}

void AbstractSubSetting::moved() {}

void AbstractSubSetting::setReadOnly(bool readOnly, bool subtree)
{
    this->readOnly = readOnly;
    if (QWidget* widget = getWidget())
        widget->setEnabled(!readOnly);
    if (!subtree)
        return;
    for (int i = 0; i < childCount(); ++i) {
        if (ISubSetting* below = child(i))
            below->setReadOnly(readOnly, true);
    }
}

bool AbstractSubSetting::isReadOnly() const
{
    return readOnly;
}

QString AbstractSubSetting::getToolTip() const
{
    return getDisplayName();
}

void AbstractSubSetting::debugEvent() {}

AbstractSubSetting::AbstractSubSetting(ISubSetting* parent)
    : m_parent(parent)
    , readOnly(false)
{
}

bool AbstractSubSetting::otherTypesSameLevel() const
{
    ISubSetting* above = parent();
    if (!above)
        return false;
    for (int i = 0; i < above->childCount(); ++i) {
        const ISubSetting* sibling = above->child(i);
        if (sibling && sibling != this && sibling->getSettingCategory() != GENERAL_SETTINGS)
            return true;
    }
    return false;
}

} // namespace JEDVEPLUGIN
