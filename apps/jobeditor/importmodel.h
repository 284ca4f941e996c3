#pragma once

#include <QAbstractTableModel>
#include <session/listpreview.h>

/// The entries of a list before it is imported: what each becomes, and a box for those that can be left out.
class ImportModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { LINE, NAME, SOURCE, BECOMES, COLUMN_COUNT };

    using QAbstractTableModel::QAbstractTableModel;

    void setPreview(const Session::ListPreview& preview);
    const Session::ListPreview& preview() const { return m_preview; }
    /// Positions of the entries that are to be imported, in order.
    QVector<int> chosenEntries() const;
    int refusedCount() const { return m_refusedCount; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    /// Entries were chosen or left out.
    void choiceChanged();

private:
    Session::ListPreview m_preview;
    QVector<bool> m_isChosen; // By row.
    int m_refusedCount = 0;
};
