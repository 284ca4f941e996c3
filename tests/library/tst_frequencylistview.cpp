#include "frequencylistview.h"

#include <support/listviewsamples.h>

#include <QLineEdit>
#include <QPainter>
#include <QPaintEvent>
#include <QPointer>
#include <QScrollBar>
#include <QStyledItemDelegate>

using JEDVEPLUGIN::FrequencyListView;

namespace {

/// Remembers which rows it paints, bold ones with an asterisk, and how often it is asked for a height.
class PaintRecorder : public QStyledItemDelegate
{
public:
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        if (index.column() == 0)
            m_rows << QString::number(index.row()) + (option.font.bold() ? "*" : "");
        QStyledItemDelegate::paint(painter, option, index);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        ++m_heights;
        return QStyledItemDelegate::sizeHint(option, index);
    }

    mutable QStringList m_rows;
    mutable int m_heights = 0;
};

/// Gathers what is painted of a widget.
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion m_region;
};

/// Rows that the view shows in its viewport, as the user sees them from top to bottom.
int shownRows(const QTreeView& view)
{
    int rows = 0;
    for (QModelIndex index = view.indexAt(QPoint(1, 1)); index.isValid(); index = view.indexBelow(index))
        rows += view.viewport()->rect().intersects(view.visualRect(index));
    return rows;
}

} // namespace

class TstFrequencyListView : public QObject, private ListViewFixture
{
    Q_OBJECT
private slots:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void signalsAndSlotsAreNamedAsDeclared();
    void flatAndUnsortedWithKeysThatEdit();
    void settingTheSameModelDoesNothing();
    void modelAnnouncesRowsAndLayout();
    void earlierModelGoesOnAnnouncing();
    void modelThatComesBackIsHeardOnce();
    void withoutModelNothingIsConnected();
    void modelThatDiesLeavesAnEmptyView();
    void currentRowIsAnnouncedAndShown();
    void currentRowFromNoneAndToNone();
    void rowThatIsNamedIsShown();
    void previousRowIsPaintedAnew();
    void everyCellOfThePreviousRowIsPainted();
    void currentRowIsPaintedAnewWithoutSelection();
    void layoutSlotsNameTheCurrentRow();
    void sortingAnnouncesLayoutInOrder();
    void changedDataIsAnnouncedOnceAfterTheBase();
    void currentRowStaysInViewWhenRowsGo();
    void distantRowsAreNotAskedForTheirHeight();
    void selectionIsPaintedWithRowsOfDifferentHeight();

    void openEditorHasTheDataThatIsAnnounced();
    void newRootIndexIsAnnounced();
    void announcedRootIndexIsTheRoot();
    void rootIndexIsDroppedWithItsModel();
    void rowsAreLaidOutAfterAReset();
    void rowsAreLaidOutWithAnotherModel();
    void currentRowIsBold();
    void nothingIsBoldUnlessAskedFor();
    void sameRowOfAnotherParentIsBoldToo();

private:
    void pressDelete() { QTest::keyClick(m_view.get(), Qt::Key_Delete); }
};

void TstFrequencyListView::signalsAndSlotsAreNamedAsDeclared()
{
    const QMetaObject& meta = FrequencyListView::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::FrequencyListView");
    QCOMPARE(meta.superClass(), &QTreeView::staticMetaObject);
    QStringList own;
    for (int method = meta.methodOffset(); method < meta.methodCount(); ++method)
        own << QString::fromLatin1(meta.method(method).methodSignature());
    const QStringList expected = {
        "si_currentFrequencyChanged(int,int)",
        "si_dataChanged()",
        "si_rootIndexChanged(QModelIndex)",
        "currentChanged(QModelIndex,QModelIndex)",
        "layoutAboutToChange()",
        "layoutChanged()",
        "dataChanged(QModelIndex,QModelIndex,QVector<int>)",
        "dataChanged(QModelIndex,QModelIndex)",
        "slotHeaderContextMenu(QPoint)",
        "_rowsRemoved(QModelIndex,int,int)",
    };
    QCOMPARE(own, expected);
    const QMetaMethod current = meta.method(meta.indexOfSignal("si_currentFrequencyChanged(int,int)"));
    QCOMPARE(current.parameterNames(), QList<QByteArray>({"curIndex", "prevIndex"}));
    QCOMPARE(meta.method(meta.indexOfSlot("layoutChanged()")).access(), QMetaMethod::Protected);
}

void TstFrequencyListView::flatAndUnsortedWithKeysThatEdit()
{
    const FrequencyListView view(nullptr, false, false);
    QVERIFY(!view.isSortingEnabled());
    QVERIFY(!view.rootIsDecorated());
    QCOMPARE(view.editTriggers(), QTreeView().editTriggers() | QAbstractItemView::AnyKeyPressed);
    QVERIFY(view.editTriggers() & QAbstractItemView::EditTrigger(16));
    QWidget parent;
    QCOMPARE((new FrequencyListView(&parent, false, false))->parentWidget(), &parent);
}

void TstFrequencyListView::settingTheSameModelDoesNothing()
{
    const QPointer<QItemSelectionModel> selection = m_view->selectionModel();
    m_view->setCurrentIndex(m_model->index(3, 0));
    m_signals->take();
    m_view->setModel(m_model.get());
    QCOMPARE(m_signals->take(), QString());
    QCOMPARE(m_view->selectionModel(), selection.data());
    QCOMPARE(m_view->currentIndex().row(), 3);
}

void TstFrequencyListView::modelAnnouncesRowsAndLayout()
{
    m_view->setCurrentIndex(m_model->index(1, 0));
    m_signals->take();
    m_model->QStandardItemModel::removeRow(6);
    QCOMPARE(m_signals->take(), QString("data"));
    m_model->appendRow(new QStandardItem("new"));
    QCOMPARE(m_signals->take(), QString());
    emit m_model->layoutAboutToBeChanged();
    QCOMPARE(m_signals->take(), QString("current -1 1"));
    emit m_model->layoutChanged();
    QCOMPARE(m_signals->take(), QString("current 1 -1, data"));
}

void TstFrequencyListView::earlierModelGoesOnAnnouncing()
{
    SampleListModel other(2, 1);
    m_view->setModel(&other);
    QCOMPARE(m_view->model(), &other);
    m_signals->take();
    m_model->QStandardItemModel::removeRow(0);
    QCOMPARE(m_signals->take(), QString("data"));
    emit m_model->layoutChanged();
    QCOMPARE(m_signals->take(), QString("current -1 -1, data"));
    other.QStandardItemModel::removeRow(0);
    QCOMPARE(m_signals->take(), QString("data"));
    m_view->setModel(nullptr);
}

void TstFrequencyListView::modelThatComesBackIsHeardOnce()
{
    SampleListModel other(2, 1);
    m_view->setModel(&other);
    m_view->setModel(m_model.get());
    m_signals->take();
    m_model->QStandardItemModel::removeRow(0);
    QCOMPARE(m_signals->take(), QString("data"));
    emit m_model->layoutAboutToBeChanged();
    emit m_model->layoutChanged();
    QCOMPARE(m_signals->take(), QString("current -1 -1, current -1 -1, data"));
}

void TstFrequencyListView::withoutModelNothingIsConnected()
{
    m_view->setModel(nullptr);
    QVERIFY(!m_view->model());
    m_signals->take();
    m_view->setModel(nullptr);
    QCOMPARE(m_signals->take(), QString());
    // The model that was taken away stays connected.
    m_model->QStandardItemModel::removeRow(0);
    QCOMPARE(m_signals->take(), QString("data"));
    // With no model in between, its old connections are still there when it comes back.
    m_view->setModel(m_model.get());
    m_signals->take();
    m_model->QStandardItemModel::removeRow(0);
    QCOMPARE(m_signals->take(), QString("data, data"));
}

void TstFrequencyListView::modelThatDiesLeavesAnEmptyView()
{
    m_tester.reset();
    m_model.reset();
    QVERIFY(!m_view->model());
    QCOMPARE(shownRows(*m_view), 0);
    pressDelete();
    m_model = std::make_unique<SampleListModel>(3, 1);
    m_view->setModel(m_model.get());
    QTest::qWait(1);
    QCOMPARE(shownRows(*m_view), 3);
}

void TstFrequencyListView::currentRowIsAnnouncedAndShown()
{
    m_view->setCurrentIndex(m_model->index(2, 1));
    QCOMPARE(m_signals->take(), QString("current 2 0"));
    m_view->setCurrentIndex(m_model->index(7, 0));
    QCOMPARE(m_signals->take(), QString("current 7 2"));
    QCOMPARE(m_view->m_scrolled, QStringList({"2:0", "7:0"}));
    m_view->setCurrentIndex(m_model->index(7, 0));
    QCOMPARE(m_signals->take(), QString());
    // Another column of the same row is another current index.
    m_view->setCurrentIndex(m_model->index(7, 2));
    QCOMPARE(m_signals->take(), QString("current 7 7"));
}

void TstFrequencyListView::currentRowFromNoneAndToNone()
{
    m_view->setCurrentIndex(m_model->index(4, 0));
    m_signals->take();
    m_view->m_scrolled.clear();
    m_view->selectionModel()->clearCurrentIndex();
    QCOMPARE(m_signals->take(), QString("current -1 4"));
    QCOMPARE(m_view->m_scrolled, QStringList());
    m_view->setCurrentIndex(m_model->index(1, 0));
    QCOMPARE(m_signals->take(), QString("current 1 -1"));
    QCOMPARE(m_view->m_scrolled, QStringList("1:0"));
}

void TstFrequencyListView::rowThatIsNamedIsShown()
{
    // By name, as a selection model of the caller's own may do.
    const auto tell = [this](const QModelIndex& current, const QModelIndex& previous) {
        return QMetaObject::invokeMethod(m_view.get(), "currentChanged", Q_ARG(QModelIndex, current),
                                         Q_ARG(QModelIndex, previous));
    };
    QVERIFY(tell(m_model->index(6, 1), m_model->index(2, 0)));
    QCOMPARE(m_signals->take(), QString("current 6 2"));
    QCOMPARE(m_view->m_scrolled, QStringList("6:0"));
    QCOMPARE(m_view->currentIndex().row(), 0);
    QVERIFY(tell(QModelIndex(), m_model->index(2, 0)));
    QCOMPARE(m_signals->take(), QString("current -1 2"));
    QCOMPARE(m_view->m_scrolled, QStringList("6:0"));
}

void TstFrequencyListView::previousRowIsPaintedAnew()
{
    PaintRecorder recorder;
    m_view->setItemDelegate(&recorder);
    m_view->setCurrentIndex(m_model->index(5, 0));
    QTest::qWait(1);
    recorder.m_rows.clear();
    m_view->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    QTest::qWait(1);
    QCOMPARE(recorder.m_rows, QStringList("5"));
}

void TstFrequencyListView::everyCellOfThePreviousRowIsPainted()
{
    m_view->setCurrentIndex(m_model->index(5, 0));
    QTest::qWait(1);
    PaintedRegion painted(m_view->viewport());
    m_view->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    QTest::qWait(1);
    for (int column = 0; column < 3; ++column)
        QVERIFY(painted.m_region.contains(m_view->visualRect(m_model->index(5, column)).center()));
    QVERIFY(!painted.m_region.contains(m_view->visualRect(m_model->index(3, 0)).center()));
}

void TstFrequencyListView::currentRowIsPaintedAnewWithoutSelection()
{
    PaintRecorder recorder;
    m_view->setItemDelegate(&recorder);
    m_view->setCurrentIndex(m_model->index(5, 0));
    QTest::qWait(1);
    recorder.m_rows.clear();
    QTest::keyClick(m_view.get(), Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(m_view->currentIndex().row(), 4);
    QTest::qWait(1);
    QVERIFY2(recorder.m_rows.contains("4*"), qPrintable(recorder.m_rows.join(' ')));
    QVERIFY2(recorder.m_rows.contains("5"), qPrintable(recorder.m_rows.join(' ')));
}

void TstFrequencyListView::layoutSlotsNameTheCurrentRow()
{
    m_view->setCurrentIndex(m_model->index(6, 0));
    m_signals->take();
    m_view->layoutAboutToChange();
    QCOMPARE(m_signals->take(), QString("current -1 6"));
    m_view->layoutChanged();
    QCOMPARE(m_signals->take(), QString("current 6 -1, data"));
    m_view->selectionModel()->clearCurrentIndex();
    m_signals->take();
    m_view->layoutAboutToChange();
    m_view->layoutChanged();
    QCOMPARE(m_signals->take(), QString("current -1 -1, current -1 -1, data"));
}

void TstFrequencyListView::sortingAnnouncesLayoutInOrder()
{
    m_view->setCurrentIndex(m_model->index(1, 0));
    m_signals->take();
    m_model->sort(0, Qt::DescendingOrder);
    // The current row moves along from 1 to 6 of 0 to 7.
    QCOMPARE(m_signals->take(), QString("current -1 1, current 6 -1, data"));
}

void TstFrequencyListView::changedDataIsAnnouncedOnceAfterTheBase()
{
    m_model->item(2, 1)->setText("other");
    QCOMPARE(m_signals->take(), QString("data"));
    emit m_model->dataChanged(m_model->index(0, 0), m_model->index(7, 2));
    QCOMPARE(m_signals->take(), QString("data"));
    // By name, with and without roles, as connections by text do.
    QVERIFY(QMetaObject::invokeMethod(m_view.get(), "dataChanged", Q_ARG(QModelIndex, m_model->index(0, 0)),
                                      Q_ARG(QModelIndex, m_model->index(0, 0))));
    QCOMPARE(m_signals->take(), QString("data"));

    PaintRecorder recorder;
    m_view->setItemDelegate(&recorder);
    QTest::qWait(1);
    recorder.m_rows.clear();
    m_model->item(4, 0)->setText("painted");
    QTest::qWait(1);
    QVERIFY(recorder.m_rows.contains("4"));
}

void TstFrequencyListView::currentRowStaysInViewWhenRowsGo()
{
    SampleListModel large(1000, 2);
    m_view->setModel(&large);
    m_view->setCurrentIndex(large.index(300, 0));
    QTest::qWait(1);
    QVERIFY(m_view->viewport()->rect().contains(m_view->visualRect(m_view->currentIndex())));
    large.removeRows(0, 320);
    QCOMPARE(m_view->currentIndex().row(), 0);
    QTest::qWait(1);
    QVERIFY(m_view->viewport()->rect().contains(m_view->visualRect(m_view->currentIndex())));
    m_view->setModel(nullptr);
}

void TstFrequencyListView::distantRowsAreNotAskedForTheirHeight()
{
    PaintRecorder recorder;
    SampleListModel large(20000, 2);
    m_view->setItemDelegate(&recorder);
    m_view->setModel(&large);
    QTest::qWait(1);
    recorder.m_heights = 0;
    m_view->setCurrentIndex(large.index(19999, 0));
    QTest::qWait(1);
    m_view->verticalScrollBar()->setValue(10000);
    m_view->setCurrentIndex(m_view->indexAt(QPoint(5, 5)));
    m_view->selectAll();
    QTest::qWait(1);
    m_view->setCurrentIndex(large.index(0, 0));
    QTest::qWait(1);
    QVERIFY2(recorder.m_heights < 1000, qPrintable(QString::number(recorder.m_heights)));
    QVERIFY(!m_view->uniformRowHeights());
    m_view->setModel(nullptr);
}

void TstFrequencyListView::selectionIsPaintedWithRowsOfDifferentHeight()
{
    PaintRecorder recorder;
    m_view->setItemDelegate(&recorder);
    m_model->item(1)->setSizeHint(QSize(50, 60));
    m_model->item(4)->setSizeHint(QSize(50, 40));
    QTest::qWait(1);
    QCOMPARE(m_view->visualRect(m_model->index(1, 0)).height(), 60);
    m_view->setCurrentIndex(m_model->index(6, 0));
    QTest::qWait(1);
    recorder.m_rows.clear();
    m_view->selectionModel()->select(m_model->index(5, 0), QItemSelectionModel::Select);
    QTest::qWait(1);
    QVERIFY(recorder.m_rows.contains("5"));
    QCOMPARE(m_view->visualRect(m_model->index(1, 0)).height(), 60);
    QCOMPARE(m_view->indexAt(m_view->visualRect(m_model->index(5, 0)).center()).row(), 5);
}

void TstFrequencyListView::openEditorHasTheDataThatIsAnnounced()
{
    m_view->openPersistentEditor(m_model->index(2, 1));
    const auto* editor = m_view->viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    QString text;
    connect(m_view.get(), &FrequencyListView::si_dataChanged, this, [&] { text = editor->text(); });
    m_model->item(2, 1)->setText("other");
    QCOMPARE(text, QString("other"));
}

void TstFrequencyListView::announcedRootIndexIsTheRoot()
{
    m_model->item(1)->appendRow(new QStandardItem("child"));
    QModelIndex root;
    connect(m_view.get(), &FrequencyListView::si_rootIndexChanged, this, [&] { root = m_view->rootIndex(); });
    m_view->setRootIndex(m_model->index(1, 0));
    QCOMPARE(root, m_model->index(1, 0));
}

void TstFrequencyListView::newRootIndexIsAnnounced()
{
    m_model->item(1)->appendRow(new QStandardItem("child"));
    m_signals->take();
    m_view->setRootIndex(QModelIndex());
    QCOMPARE(m_signals->take(), QString());
    m_view->setRootIndex(m_model->index(1, 0));
    QCOMPARE(m_signals->take(), QString("root 1.0"));
    QCOMPARE(m_view->rootIndex(), m_model->index(1, 0));
    m_view->setRootIndex(m_model->index(1, 0));
    QCOMPARE(m_signals->take(), QString());
    QTest::qWait(1);
    QCOMPARE(shownRows(*m_view), 1);
    m_view->setRootIndex(QModelIndex());
    QCOMPARE(m_signals->take(), QString("root none"));
    QTest::qWait(1);
    QCOMPARE(shownRows(*m_view), 8);
}

void TstFrequencyListView::rootIndexIsDroppedWithItsModel()
{
    m_view->setRootIndex(m_model->index(1, 0));
    m_signals->take();
    SampleListModel other(2, 1);
    m_view->setModel(&other);
    QVERIFY(m_signals->take().contains("root none"));
    QVERIFY(!m_view->rootIndex().isValid());
    m_view->setModel(nullptr);
}

void TstFrequencyListView::rowsAreLaidOutAfterAReset()
{
    m_signals->take();
    m_model->clear();
    QTest::qWait(1);
    QCOMPARE(shownRows(*m_view), 0);
    for (int row = 0; row < 5; ++row)
        m_model->appendRow(new QStandardItem(QString::number(row)));
    QTest::qWait(1);
    QCOMPARE(shownRows(*m_view), 5);

    class Resettable : public QStandardItemModel
    {
    public:
        using QStandardItemModel::beginResetModel;
        using QStandardItemModel::endResetModel;
        using QStandardItemModel::QStandardItemModel;
    };
    Resettable model(5, 1);
    m_view->setModel(&model);
    QTest::qWait(1);
    model.beginResetModel();
    model.endResetModel();
    m_signals->take();
    QTest::qWait(1);
    QCOMPARE(shownRows(*m_view), 5);
    QVERIFY(m_view->indexBelow(model.index(1, 0)) == model.index(2, 0));
    QCOMPARE(m_signals->take(), QString());
    m_view->setModel(nullptr);
}

void TstFrequencyListView::rowsAreLaidOutWithAnotherModel()
{
    SampleListModel other(4, 2);
    m_view->setModel(&other);
    QTest::qWait(1);
    QCOMPARE(shownRows(*m_view), 4);
    m_view->setModel(m_model.get());
    QTest::qWait(1);
    QCOMPARE(shownRows(*m_view), 8);
    QCOMPARE(m_view->indexBelow(m_model->index(0, 0)), m_model->index(1, 0));
}

void TstFrequencyListView::currentRowIsBold()
{
    PaintRecorder recorder;
    m_view->setItemDelegate(&recorder);
    m_view->setCurrentIndex(m_model->index(2, 1));
    recorder.m_rows.clear();
    m_view->viewport()->repaint();
    QCOMPARE(recorder.m_rows.join(' '), QString("0 1 2* 3 4 5 6 7"));
    m_view->selectionModel()->clearCurrentIndex();
    recorder.m_rows.clear();
    m_view->viewport()->repaint();
    QCOMPARE(recorder.m_rows.join(' '), QString("0 1 2 3 4 5 6 7"));
}

void TstFrequencyListView::nothingIsBoldUnlessAskedFor()
{
    PaintRecorder recorder;
    FrequencyListView view(nullptr, false, false);
    view.setItemDelegate(&recorder);
    view.setModel(m_model.get());
    view.resize(400, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.setCurrentIndex(m_model->index(2, 1));
    recorder.m_rows.clear();
    view.viewport()->repaint();
    QCOMPARE(recorder.m_rows.join(' '), QString("0 1 2 3 4 5 6 7"));
}

void TstFrequencyListView::sameRowOfAnotherParentIsBoldToo()
{
    m_model->item(0)->appendRow(new QStandardItem("child 0"));
    m_model->item(0)->appendRow(new QStandardItem("child 1"));
    m_view->expand(m_model->index(0, 0));
    m_view->setCurrentIndex(m_model->index(1, 0));
    PaintRecorder recorder;
    m_view->setItemDelegate(&recorder);
    recorder.m_rows.clear();
    m_view->viewport()->repaint();
    QCOMPARE(recorder.m_rows.join(' '), QString("0 0 1* 1* 2 3 4 5 6 7"));
}

JED_TEST_MAIN(TstFrequencyListView)
#include "tst_frequencylistview.moc"
