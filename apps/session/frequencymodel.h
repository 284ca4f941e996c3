#pragma once

#include "frequencyuse.h"
#include "jobcomposer.h"
#include "pacedrefresh.h"

#include <QAbstractListModel>
#include <QSet>

namespace JEDVEPLUGIN {
class ISubSetting;
}

namespace Session {

class JobSession;

/// The frequencies of a job as a list: for each sub-job the ranges that it works at, rising, then those that its receiver covers,
/// then sentences on what could not be told. Follows the job. GUI thread only.
class FrequencyModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Kind { USED, COVERED, UNTOLD };

    struct Item
    {
        int subjob = 0; ///< position in the job
        Kind kind = USED;
        FrequencyRange range; ///< of nothing for a sentence
        QString sentence;     ///< empty for a range
    };

    /// \param session    not owned, outlives the model
    /// \param resources  the receivers of the installation
    FrequencyModel(JobSession* session, const JobComposer::Resources& resources, QObject* parent = nullptr);

    /// While nobody looks, nothing is worked out.
    void setWatched(bool isWatched);

    const Item& item(int row) const { return m_items.at(row); }
    int subjobCount() const { return m_names.size(); }
    QString subjobName(int subjob) const { return m_names.value(subjob); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The text of a row says all that a drawing shows; the tool tip has all digits.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    void changeSetting(JEDVEPLUGIN::ISubSetting* setting);
    void changeAll();
    void refreshSoon();
    void refresh();
    QVector<Item> itemsOf(int subjob) const;
    QString toolTip(const Item& item) const;

    JobSession* m_session; // Not owned.
    JobComposer::Resources m_resources;
    QVector<Item> m_items;
    QStringList m_names;
    QSet<int> m_changed; // Sub-jobs.
    bool m_isAllChanged = true;
    bool m_isWatched = false;
    PacedRefresh m_refresh;
};

} // namespace Session
