#pragma once

#include "isubsetting.h"

#include <QtCore/QHash>

namespace JEDVEPLUGIN {

/// Base of setting nodes: keeps the parent link, the ordered children and an index of them by type, and
/// answers everything else neutrally. Its algorithms ask child(), childCount(), parent(), childIndex(),
/// isReadOnly() and their like through the interface, so that overriding one of them is honoured. GUI thread
/// only.
///
/// A copy refers to the same child objects as the original. It is for looking at only: two nodes must not
/// both be destroyed while they list the same children.
class JEDVEPB_EXPORT AbstractSubSetting : public ISubSetting
{
public:
    AbstractSubSetting(const AbstractSubSetting& other);
    AbstractSubSetting& operator=(const AbstractSubSetting& other);
    /// Deletes the children that are still listed; one that is to live on is removed before.
    ~AbstractSubSetting() override;

    /// False.
    bool overwriteTreeColor() const override;
    /// Opaque yellow.
    const QColor& getTreeColor() const override;

    ISubSetting* child(int index) override;
    int childIndex(ISubSetting* child) const override;
    int childCount() const override;
    ISubSetting* parent() const override;
    void setParent(ISubSetting* parent) override;
    int row() override;
    void appendSubsetting(ISubSetting* child) override;
    void removeSubSetting(ISubSetting* child) override;
    void removeAllSubSettings() override;
    int typeCount(const QString& type) const override;
    int settingTypePosition(const QString& type, ISubSetting* setting) const override;
    ISubSetting* settingAtTypePosition(const QString& type, int position) const override;

    /// Null.
    QPixmap* getPixmap() const override;
    /// True.
    bool isDragEnabled() const override;
    /// True.
    bool isDropEnabled() const override;
    /// Empty.
    QString getMimeText(int level) const override;
    /// False.
    bool supportsMimeText() const override;
    bool canMoveChild(ISubSetting* child) const override;
    void moveChild(int from, int to) override;
    /// Does nothing.
    void moved() override;
    void setReadOnly(bool readOnly, bool subtree) override;
    bool isReadOnly() const override;
    /// The display name.
    QString getToolTip() const override;
    /// Does nothing.
    void debugEvent() override;

protected:
    /// Characters by which getMimeText() indents one level of the tree.
    static constexpr int CHARS_PER_INDENT = 4;

    /// \param parent  the parent link, null for a root; the parent's list of children is not touched
    explicit AbstractSubSetting(ISubSetting* parent);

    /// Whether a sibling is of another category than "GeneralSettings". False for a root.
    bool otherTypesSameLevel() const;

private:
    ISubSetting* m_parent;                         // Not owned.
    QList<ISubSetting*> children;                  // Owned, in display order.
    QHash<QString, QList<ISubSetting*>> typeIndex; // The same children by type, each list in display order.
    bool readOnly;
};

} // namespace JEDVEPLUGIN
