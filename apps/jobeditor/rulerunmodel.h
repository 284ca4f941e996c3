#pragma once

#include <deque>
#include <memory>
#include <QAbstractItemModel>
#include <session/rulelog.h>

/// The runs of a rule log as a tree: below each run what it changed, what went wrong, and the runs inside it. GUI
/// thread only.
class RuleRunModel : public QAbstractItemModel
{
    Q_OBJECT
public:
    enum Column { COLUMN_RULE, COLUMN_CHANGE, COLUMN_TIME, COLUMN_DURATION, COLUMN_COUNT };
    enum Role {
        PATH_ROLE = Qt::UserRole, ///< value-tree path of the value that the row is about; may be empty
        UNUSED_ROLE, ///< whether it is a run of which nothing but its function's absence can be told
        SEARCH_ROLE, ///< of an outermost run: all its texts
    };

    /// \param log  outlives the model
    explicit RuleRunModel(Session::RuleLog* log, QObject* parent = nullptr);
    ~RuleRunModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Row;

    void append(const Session::RuleLog::Run& run);
    void removeFirst(int count);
    int rowOf(const Row* row) const;
    static std::unique_ptr<Row> makeRun(const Session::RuleRun& run, Row* parent, int number);
    static const Row* rowAt(const QModelIndex& index);

    std::deque<std::unique_ptr<Row>> m_rows; // Outermost runs.
    int m_firstNumber = 0;                   // Of the first of them.
};
