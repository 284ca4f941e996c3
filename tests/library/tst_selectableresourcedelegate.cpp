#include "checkedheaderview.h"
#include "filterintegerrangeproxymodel.h"
#include "selectableresourceitemdelegate.h"
#include "selectableresourcemodel.h"

#include <support/resourcemodelfixture.h>
#include <support/testmain.h>

#include <QIdentityProxyModel>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>

#include <climits>

using JedTest::resources;
using JedTest::rows;
using JEDVEPLUGIN::CheckedHeaderView;
using JEDVEPLUGIN::FilterIntegerRangeProxyModel;
using JEDVEPLUGIN::SelectableResourceItemDelegate;

namespace {
QString range(const QWidget* editor)
{
    const auto* spinBox = qobject_cast<const QSpinBox*>(editor);
    return spinBox ? QString("%1 to %2").arg(spinBox->minimum()).arg(spinBox->maximum())
                   : QString("no spin box");
}
} // namespace

class TstSelectableResourceDelegate : public QObject, private JedTest::ResourceModelFixture
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void classIsKnownToQt();
    void spinBoxGoesToTheMaximum();
    void spinBoxBehindAProxy();
    void spinBoxBehindAProxyOfOtherColumns();
    void secondProxyIsNotLookedThrough();
    void otherColumnsAndModelsAreLeftAlone();
    void editorBelongsToItsParent();
    void countIsEditedInAView();
    void tableWithCheckBoxesAndFilter();

private:
    QString rangeOf(const QModelIndex& index) const;

    std::unique_ptr<SelectableResourceItemDelegate> m_delegate;
    std::unique_ptr<QWidget> m_window;
};

void TstSelectableResourceDelegate::init()
{
    open();
    m_delegate = std::make_unique<SelectableResourceItemDelegate>(nullptr);
    m_window = std::make_unique<QWidget>();
}

void TstSelectableResourceDelegate::cleanup()
{
    m_window.reset();
    m_delegate.reset();
    close();
}

QString TstSelectableResourceDelegate::rangeOf(const QModelIndex& index) const
{
    const std::unique_ptr<QWidget> editor(
        m_delegate->createEditor(m_window.get(), QStyleOptionViewItem(), index));
    return range(editor.get());
}

void TstSelectableResourceDelegate::classIsKnownToQt()
{
    const QMetaObject& meta = SelectableResourceItemDelegate::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::SelectableResourceItemDelegate");
    QCOMPARE(meta.superClass(), &QStyledItemDelegate::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QObject parent;
    QCOMPARE((new SelectableResourceItemDelegate(&parent))->parent(), &parent);
}

void TstSelectableResourceDelegate::spinBoxGoesToTheMaximum()
{
    load({"A 7", "P 4", "C 9 P", "Z 0"});
    m_model->setSelectionCount(find("P"), 1);
    QCOMPARE(rangeOf(m_model->index(0, 1)), QString("0 to 7"));
    QCOMPARE(rangeOf(m_model->index(1, 1)), QString("0 to 4"));
    QCOMPARE(rangeOf(m_model->index(2, 1)), QString("0 to 3"));
    QCOMPARE(rangeOf(m_model->index(3, 1)), QString("0 to 0"));
    m_model->setSelectionCount(find("P"), 3);
    QCOMPARE(rangeOf(m_model->index(2, 1)), QString("0 to 1"));
}

void TstSelectableResourceDelegate::spinBoxBehindAProxy()
{
    load({"A 7", "B 3"});
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(m_model.get());
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(proxy.index(0, 0).data().toString(), QString("B"));
    QCOMPARE(rangeOf(proxy.index(0, 1)), QString("0 to 3"));
    QCOMPARE(rangeOf(proxy.index(1, 1)), QString("0 to 7"));
}

void TstSelectableResourceDelegate::spinBoxBehindAProxyOfOtherColumns()
{
    class CountOnly : public QSortFilterProxyModel
    {
        bool filterAcceptsColumn(int column, const QModelIndex&) const override { return column == 1; }
    };
    load({"A 7"});
    CountOnly proxy;
    proxy.setSourceModel(m_model.get());
    QCOMPARE(proxy.columnCount(), 1);
    QCOMPARE(rangeOf(proxy.index(0, 0)), QString("0 to 7"));
}

void TstSelectableResourceDelegate::secondProxyIsNotLookedThrough()
{
    load({"A 7"});
    QIdentityProxyModel inner;
    inner.setSourceModel(m_model.get());
    QIdentityProxyModel outer;
    outer.setSourceModel(&inner);
    QCOMPARE(rangeOf(inner.index(0, 1)), QString("0 to 7"));
    QCOMPARE(rangeOf(outer.index(0, 1)), QString("%1 to %2").arg(INT_MIN).arg(INT_MAX));
}

void TstSelectableResourceDelegate::otherColumnsAndModelsAreLeftAlone()
{
    load({"A 7"});
    const QString whole = QString("%1 to %2").arg(INT_MIN).arg(INT_MAX);
    QCOMPARE(rangeOf(m_model->index(0, 2)), whole);
    QCOMPARE(rangeOf(m_model->index(0, 0)), QString("no spin box"));
    QStandardItemModel other(1, 3);
    for (int column = 0; column < 3; ++column)
        other.setData(other.index(0, column), 5);
    QCOMPARE(rangeOf(other.index(0, 1)), whole);
    other.setData(other.index(0, 1), "text");
    QCOMPARE(rangeOf(other.index(0, 1)), QString("no spin box"));
    QIdentityProxyModel proxy;
    proxy.setSourceModel(&other);
    QCOMPARE(rangeOf(proxy.index(0, 2)), whole);
    // A decimal editor is none for whole numbers, and stays as it is.
    other.setData(other.index(0, 1), 2.5);
    const std::unique_ptr<QWidget> editor(
        m_delegate->createEditor(m_window.get(), QStyleOptionViewItem(), other.index(0, 1)));
    QVERIFY(qobject_cast<QDoubleSpinBox*>(editor.get()));
}

void TstSelectableResourceDelegate::editorBelongsToItsParent()
{
    load({"A 7"});
    const QPointer<QWidget> editor =
        m_delegate->createEditor(m_window.get(), QStyleOptionViewItem(), m_model->index(0, 1));
    QCOMPARE(editor->parentWidget(), m_window.get());
    m_window.reset();
    QVERIFY(editor.isNull());
}

void TstSelectableResourceDelegate::countIsEditedInAView()
{
    load({"A 7", "B 0"});
    QTableView view;
    view.setItemDelegate(m_delegate.get());
    view.setModel(m_model.get());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.edit(m_model->index(0, 1));
    auto* spinBox = view.findChild<QSpinBox*>();
    QVERIFY(spinBox);
    QCOMPARE(range(spinBox), QString("0 to 7"));
    QCOMPARE(spinBox->value(), 0);
    spinBox->setValue(99);
    QTest::keyClick(spinBox, Qt::Key_Enter);
    QTest::qWait(1);
    QCOMPARE(rows(*m_model), QString("A 7/7 B 0/0"));
    // A resource that offers nothing cannot be edited.
    QTRY_VERIFY(!view.findChild<QSpinBox*>());
    QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
    view.edit(m_model->index(1, 1));
    QVERIFY(!view.findChild<QSpinBox*>());
}

void TstSelectableResourceDelegate::tableWithCheckBoxesAndFilter()
{
    load({"A 2", "P 1", "C 3 P"});
    FilterIntegerRangeProxyModel filter(nullptr);
    filter.setSourceModel(m_model.get());
    filter.setFilterKeyColumn(2);
    filter.setDynamicSortFilter(true);
    filter.setRange(1, INT_MAX);
    filter.enableRangeFilter();
    const QAbstractItemModelTester tester(&filter, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QTableView view;
    auto* header = new CheckedHeaderView(Qt::Vertical, &view);
    view.setVerticalHeader(header);
    view.setSortingEnabled(true);
    view.setModel(&filter);
    view.resize(400, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(rows(filter), QString("A 0/2 P 0/1 C 0/1"));

    const auto press = [&](int row) {
        QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(3, header->sectionViewportPosition(row) + 3));
    };
    press(1);
    // What the parent took is not there for the child, which is hidden for that.
    QCOMPARE(rows(filter), QString("A 0/2 P 1/1"));
    press(1);
    QCOMPARE(rows(filter), QString("A 0/2 P 0/1 C 0/1"));
    press(2);
    QCOMPARE(rows(filter), QString("A 0/2 C 1/1"));
    filter.enableRangeFilter(false);
    QCOMPARE(rows(filter), QString("A 0/2 P 0/0 C 1/1"));
}

JED_TEST_MAIN(TstSelectableResourceDelegate)
#include "tst_selectableresourcedelegate.moc"
