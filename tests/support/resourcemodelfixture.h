#pragma once

#include "selectableresourcemodel.h"

#include <support/resourcesamples.h>

#include <QAbstractItemModelTester>
#include <QStringList>

#include <utility>

namespace JedTest {

/// "base count/maximum base count/maximum ..."
inline QString rows(const QAbstractItemModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts << QString("%1 %2/%3")
                     .arg(model.index(row, 0).data().toString(), model.index(row, 1).data().toString(),
                          model.index(row, 2).data().toString());
    }
    return texts.join(' ');
}

inline QString names(const QList<DescriptionPtr>& descriptions)
{
    QStringList texts;
    for (const DescriptionPtr& description : descriptions)
        texts << description->getBaseResource();
    return texts.join(' ');
}

/// The signals of a model in the order of their emission, with the rows and columns that they name.
class ModelSignals : public QObject
{
public:
    explicit ModelSignals(QAbstractItemModel* model)
    {
        connect(model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& from, const QModelIndex& to, const QVector<int>& roles) {
                    m_log << QString("data %1.%2-%3.%4")
                                     .arg(from.row())
                                     .arg(from.column())
                                     .arg(to.row())
                                     .arg(to.column()) +
                                 (roles.isEmpty() ? "" : " with roles");
                });
        connect(model, &QAbstractItemModel::headerDataChanged, this,
                [this](Qt::Orientation orientation, int from, int to) {
                    m_log << QString("%1 header %2-%3")
                                 .arg(orientation == Qt::Vertical ? "vertical" : "horizontal")
                                 .arg(from)
                                 .arg(to);
                });
        connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_log << "about to reset"; });
        connect(model, &QAbstractItemModel::modelReset, this, [this] { m_log << "reset"; });
    }
    QString take() { return std::exchange(m_log, QStringList()).join(", "); }

private:
    QStringList m_log;
};

/// A model of selectable resources, empty at first, under the tester of item models.
class ResourceModelFixture
{
public:
    void open()
    {
        m_model = std::make_unique<JEDVEPLUGIN::SelectableResourceModel>(nullptr);
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        m_signals = std::make_unique<ModelSignals>(m_model.get());
    }
    void close()
    {
        m_signals.reset();
        m_tester.reset();
        m_model.reset();
        m_descriptions.clear();
    }

    /// Fills the model with resources given as for resources().
    void load(const QStringList& texts)
    {
        m_descriptions = resources(texts);
        m_model->setResources(m_descriptions);
        m_signals->take();
    }

    DescriptionPtr find(const QString& base) const
    {
        for (const DescriptionPtr& description : m_descriptions) {
            if (description->getBaseResource() == base)
                return description;
        }
        return nullptr;
    }

    std::unique_ptr<JEDVEPLUGIN::SelectableResourceModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<ModelSignals> m_signals;
    QList<DescriptionPtr> m_descriptions;
};

} // namespace JedTest
