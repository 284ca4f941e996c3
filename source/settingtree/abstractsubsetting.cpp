#include "abstractsubsetting.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

namespace JEDVEPLUGIN {

namespace {
const QLatin1String GENERAL_SETTINGS("GeneralSettings");
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
    const QString type = child->getSettingType();
    children.insert(endOfGroup(type), child);
    typeIndex[type].append(child);
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
    rebuildTypeIndex(movedChild->getSettingType());
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

// The place behind the last child of a type, the end of the list if there is none. Children of one type
// usually stand together: the walk from the end steps over whole groups and compares single entries only
// where moves have torn a group apart. A group is whole if its first and its last entry are as far apart as
// it is long.
int AbstractSubSetting::endOfGroup(const QString& type) const
{
    const auto group = typeIndex.constFind(type);
    if (group == typeIndex.constEnd() || group->isEmpty())
        return children.size();
    ISubSetting* last = group->last();
    int place = children.size() - 1;
    while (place >= 0 && children.at(place) != last) {
        const auto other = typeIndex.constFind(children.at(place)->getSettingType());
        const int size = other == typeIndex.constEnd() ? 0 : other->size();
        const int first = place - size + 1;
        if (size == 0 || first < 0 || children.at(place) != other->last() ||
            children.at(first) != other->first())
            return children.lastIndexOf(last, place) + 1;
        place = first - 1;
    }
    return place + 1;
}

void AbstractSubSetting::rebuildTypeIndex(const QString& type)
{
    QList<ISubSetting*>& group = typeIndex[type];
    group.clear();
    for (ISubSetting* child : qAsConst(children)) {
        if (child->getSettingType() == type)
            group.append(child);
    }
}

} // namespace JEDVEPLUGIN
