#pragma once

#include <memory>
#include <QAbstractItemModel>
#include <QHash>
#include <QPair>
#include <QVector>

namespace JEDVEPLUGIN {
class ISubSetting;
}

namespace Session {

class JobSession;

/// The settings of a job as a tree, for views: sub-jobs of all plug-ins in the order of the job file, their
/// settings below them. A sub-job that no plug-in claims is a row that can only be looked at.
///
/// Drag and drop works within one parent, by the rules of the settings; text from elsewhere can be dropped, too.
/// GUI thread only.
class SettingTreeModel : public QAbstractItemModel
{
    Q_OBJECT
public:
    enum Role {
        TYPE_ROLE = Qt::UserRole, ///< the setting type
        PROBLEM_ROLE,             ///< the worst problem of the setting itself: 0 note to 2 error, -1 for none
        CLAIMED_ROLE,             ///< false for a sub-job without a plug-in
    };

    explicit SettingTreeModel(JobSession* session, QObject* parent = nullptr);
    ~SettingTreeModel() override;

    /// Null for the root, and for a sub-job without a plug-in.
    JEDVEPLUGIN::ISubSetting* settingOf(const QModelIndex& index) const;
    /// Invalid for a stranger.
    QModelIndex indexOf(JEDVEPLUGIN::ISubSetting* setting) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    struct Item;
    /// What a row stands for: a setting, or the number of a sub-job without one.
    using Key = QPair<JEDVEPLUGIN::ISubSetting*, int>;

    void clear();
    void rebuild();
    void removeSetting(JEDVEPLUGIN::ISubSetting* setting);
    void removeRow(Item* item, int row);
    void synchronise();
    void synchronise(Item* item, const QVector<Key>& wanted);
    void fill(Item* item);
    QVector<Key> childrenOf(const Item* item) const;
    void tellChanged(JEDVEPLUGIN::ISubSetting* setting);
    Item* itemOf(const QModelIndex& index) const;
    QModelIndex indexOf(const Item* item) const;
    void drop(Item* item);
    bool isMoveWithin(const QMimeData* data, const QModelIndex& parent, int* from) const;
    QVariant unclaimedData(int row, int role) const;
    QVariant settingData(JEDVEPLUGIN::ISubSetting* setting, int role) const;

    JobSession* m_session;        // Not owned.
    std::unique_ptr<Item> m_root; // What the views have been told.
    QHash<JEDVEPLUGIN::ISubSetting*, Item*> m_bySetting;
};

} // namespace Session
