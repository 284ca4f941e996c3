#pragma once

#include "jedvepb_export.h"
#include "problem.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QColor;
class QPixmap;
class QWidget;

namespace JEDVEPLUGIN {

/// A node of the job editor's setting tree: a sub-job, a general-settings node or any parameter-set node of a
/// plug-in. A node owns its children; its parent link is a plain reference. GUI thread only.
///
/// The editor and the factories know nodes by this interface alone. Derive from AbstractSubSetting, which
/// keeps the children, unless a node has to keep them in a way of its own. The order of the operations is
/// part of the binary interface: new ones are appended at the end.
class JEDVEPB_EXPORT ISubSetting
{
public:
    virtual ~ISubSetting();

    /// The kind of setting, the same for the whole life of the node once it has a place among its parent's
    /// children, which are counted and placed by it.
    virtual QString getSettingType() const = 0;
    /// The text that is shown for the node.
    virtual QString getDisplayName() const = 0;
    /// Renames the node.
    /// \return false, with nothing changed, if the name is not acceptable or the node cannot be renamed
    virtual bool setDisplayName(const QString& name) = 0;
    /// Names of the parameter sets that the node carries, in the order in which they are to be shown.
    virtual QStringList parameterSetNames() const = 0;
    /// The present content of one parameter set as XML text; empty if the node has no set of that name.
    virtual QString parameterSetText(const QString& name) const = 0;
    /// Replaces the content of one parameter set. Undo and redo set what parameterSetText() gave before: an empty
    /// text takes a set away that the node can be without, and a text for one that it could carry makes it.
    /// \return false, with nothing changed, for an unknown name or text that cannot be read
    virtual bool setParameterSetText(const QString& name, const QString& xml) = 0;
    /// Whether getTreeColor() replaces the tree's usual colour.
    virtual bool overwriteTreeColor() const = 0;
    /// The colour of the node in the tree, valid as long as the process.
    virtual const QColor& getTreeColor() const = 0;
    /// The editor widget of the node, null if it has none. The node decides who owns it.
    virtual QWidget* getWidget() = 0;
    /// What is wrong with the node's present values, empty if nothing is. Children answer for themselves.
    virtual QList<Problem> problems() const = 0;
    /// "GeneralSettings" for nodes that do not count as another type beside their siblings.
    virtual QString getSettingCategory() const = 0;

    /// The child at that position of the display order, null if there is none.
    virtual ISubSetting* child(int index) = 0;
    /// Position of a child in the display order, -1 if it is not listed (null too).
    virtual int childIndex(ISubSetting* child) const = 0;
    virtual int childCount() const = 0;
    /// Null for a root.
    virtual ISubSetting* parent() const = 0;
    /// Sets the parent link and nothing else: neither parent's list of children is touched.
    virtual void setParent(ISubSetting* parent) = 0;
    /// Position among the parent's children: 0 for a root, -1 if the parent does not list the node.
    virtual int row() = 0;
    /// Takes a child over, placed behind the last child of its type, or at the end if it is the first one.
    /// Its parent link stays as it is; the caller sets it with setParent(). Null is ignored.
    virtual void appendSubsetting(ISubSetting* child) = 0;
    /// Gives a child away: the caller owns it from then on. Its parent link stays as it is. Null and
    /// strangers are ignored.
    virtual void removeSubSetting(ISubSetting* child) = 0;
    /// Forgets all children without deleting one.
    virtual void removeAllSubSettings() = 0;
    /// How many children are of that type.
    virtual int typeCount(const QString& type) const = 0;
    /// Position of a child among the children of that type, -1 if it is none of them.
    virtual int settingTypePosition(const QString& type, ISubSetting* setting) const = 0;
    /// The child at that position among the children of that type, null if there is none.
    virtual ISubSetting* settingAtTypePosition(const QString& type, int position) const = 0;

    /// Picture of the node in the tree, null if it has none. Not the caller's.
    virtual QPixmap* getPixmap() const = 0;
    virtual bool isDragEnabled() const = 0;
    virtual bool isDropEnabled() const = 0;
    /// The node with its whole subtree as text for drag and drop, copy and undo.
    /// \param level  levels of the tree by which the text is indented, 0 or more
    virtual QString getMimeText(int level) const = 0;
    /// Whether getMimeText() gives anything.
    virtual bool supportsMimeText() const = 0;
    /// Whether a child may be moved among its siblings: never in a read-only node, never a stranger or null.
    virtual bool canMoveChild(ISubSetting* child) const = 0;
    /// Moves a child and tells it with moved(). A position outside the list counts as its nearest end.
    /// \param from  present position
    /// \param to    position in front of which the child is dropped, counted in the list as it is before
    virtual void moveChild(int from, int to) = 0;
    /// The node was moved among its siblings.
    virtual void moved() = 0;
    /// \param readOnly  true: the values cannot be edited, the editor widget is disabled
    /// \param subtree   whether all nodes below follow
    virtual void setReadOnly(bool readOnly, bool subtree) = 0;
    virtual bool isReadOnly() const = 0;
    virtual QString getToolTip() const = 0;
    /// Called by the editor when a developer asks for it; the node may trace what it likes.
    virtual void debugEvent() = 0;
};

} // namespace JEDVEPLUGIN

Q_DECLARE_METATYPE(JEDVEPLUGIN::ISubSetting*)
