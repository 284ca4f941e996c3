#include "lineedittooltipadapter.h"

#include <support/testmain.h>

#include <QComboBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolTip>
#include <QVBoxLayout>

using JEDVEPLUGIN::LineEditTooltipAdapter;

namespace {

const QPoint PLACE(120, 90);

int textWidth(const QLineEdit& edit)
{
    return QFontMetrics(edit.font()).horizontalAdvance(edit.text());
}

/// Sends what the system sends after the mouse has rested. True if somebody has handled it.
bool rest(QWidget& widget, const QPoint& place = PLACE)
{
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), place);
    return QApplication::sendEvent(&widget, &event);
}

/// Where the tool tip stands that a mouse resting there brings up; (-1, -1) for none.
QPoint shownAt(QWidget& field, const QPoint& place)
{
    rest(field, place);
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return widget->pos();
    }
    return QPoint(-1, -1);
}

/// Counts the tool tip events that get through to the line edit.
class CountingEdit : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ToolTip)
            ++m_toolTips;
        return QLineEdit::event(event);
    }
    int m_toolTips = 0;
};

} // namespace

class TstLineEditTooltipAdapter : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void classIsKnownToQt();
    void toolTipByWidth_data();
    void toolTipByWidth();
    void wholeWidgetCounts();
    void textOfTodayCounts();
    void fontOfTheFieldCounts();
    void emptyToolTipShowsNothing();
    void emptyToolTipTakesAwayTheOneBefore();
    void toolTipIsConsumed();
    void toolTipComesAtThePlace();
    void sameTextOfAnotherFieldMovesTheToolTip();
    void blanksOfAMaskAreNotShown();
    void otherEventsPass_data();
    void otherEventsPass();
    void otherWidgetsPass();
    void toolTipThatIsNoHelpEventPasses();
    void nullIsIgnored();
    void removedFieldIsAsBefore();
    void removingAStrangerChangesNothing();
    void lineEditIsAddedItself();
    void allFieldsOfAFormAreAdded();
    void laterFieldsAreNotAdded();
    void addedTwiceIsRemovedOnce();
    void adapterMayGoFirst();

private:
    std::unique_ptr<CountingEdit> m_edit;
    std::unique_ptr<LineEditTooltipAdapter> m_adapter;
};

void TstLineEditTooltipAdapter::init()
{
    m_edit = std::make_unique<CountingEdit>("145.500 MHz, the calling frequency of the band");
    m_edit->setToolTip("frequency");
    m_edit->resize(textWidth(*m_edit) - 1, 30);
    m_edit->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_edit.get()));
    m_adapter = std::make_unique<LineEditTooltipAdapter>(nullptr);
    m_adapter->addLineEdit(m_edit.get());
}

void TstLineEditTooltipAdapter::cleanup()
{
    m_adapter.reset();
    m_edit.reset();
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TstLineEditTooltipAdapter::classIsKnownToQt()
{
    const QMetaObject& meta = LineEditTooltipAdapter::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::LineEditTooltipAdapter");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QObject parent;
    QCOMPARE((new LineEditTooltipAdapter(&parent))->parent(), &parent);
}

void TstLineEditTooltipAdapter::toolTipByWidth_data()
{
    QTest::addColumn<int>("room"); // pixels that the field is wider than its text
    QTest::addColumn<bool>("fits");
    QTest::newRow("ample") << 100 << true;
    QTest::newRow("exactly") << 0 << true;
    QTest::newRow("one pixel less") << -1 << false;
    QTest::newRow("half") << -100 << false;
}

void TstLineEditTooltipAdapter::toolTipByWidth()
{
    QFETCH(int, room);
    QFETCH(bool, fits);
    m_edit->resize(textWidth(*m_edit) + room, 30);
    QVERIFY(rest(*m_edit));
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), fits ? m_edit->toolTip() : m_edit->text());
}

void TstLineEditTooltipAdapter::wholeWidgetCounts()
{
    m_edit->resize(textWidth(*m_edit), 30);
    m_edit->setContentsMargins(20, 0, 20, 0);
    m_edit->setTextMargins(10, 0, 10, 0);
    rest(*m_edit);
    QCOMPARE(QToolTip::text(), QString("frequency"));
}

void TstLineEditTooltipAdapter::textOfTodayCounts()
{
    rest(*m_edit);
    QCOMPARE(QToolTip::text(), m_edit->text());
    m_edit->setText("7");
    rest(*m_edit);
    QCOMPARE(QToolTip::text(), QString("frequency"));
}

void TstLineEditTooltipAdapter::fontOfTheFieldCounts()
{
    QFont small = m_edit->font();
    small.setPixelSize(4);
    m_edit->setFont(small);
    rest(*m_edit);
    QCOMPARE(QToolTip::text(), QString("frequency"));
    QFont large = m_edit->font();
    large.setPixelSize(40);
    m_edit->setFont(large);
    rest(*m_edit);
    QCOMPARE(QToolTip::text(), m_edit->text());
}

void TstLineEditTooltipAdapter::emptyToolTipShowsNothing()
{
    m_edit->setToolTip("");
    m_edit->setText("7");
    QVERIFY(rest(*m_edit));
    QVERIFY(!QToolTip::isVisible());
    m_edit->setText("");
    QVERIFY(rest(*m_edit));
    QVERIFY(!QToolTip::isVisible());
}

void TstLineEditTooltipAdapter::emptyToolTipTakesAwayTheOneBefore()
{
    rest(*m_edit);
    QVERIFY(QToolTip::isVisible());
    m_edit->setToolTip("");
    m_edit->setText("7");
    rest(*m_edit);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TstLineEditTooltipAdapter::toolTipIsConsumed()
{
    rest(*m_edit);
    m_edit->setText("7");
    rest(*m_edit);
    QCOMPARE(m_edit->m_toolTips, 0);
}

void TstLineEditTooltipAdapter::toolTipComesAtThePlace()
{
    const QPoint first = shownAt(*m_edit, QPoint(20, 40));
    QVERIFY(first != QPoint(-1, -1));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    QCOMPARE(shownAt(*m_edit, QPoint(70, 140)) - first, QPoint(50, 100));
}

void TstLineEditTooltipAdapter::sameTextOfAnotherFieldMovesTheToolTip()
{
    CountingEdit other(m_edit->text());
    other.resize(m_edit->size());
    other.show();
    m_adapter->addLineEdit(&other);
    const QPoint first = shownAt(*m_edit, QPoint(20, 40));
    QCOMPARE(shownAt(other, QPoint(70, 140)) - first, QPoint(50, 100));
}

void TstLineEditTooltipAdapter::blanksOfAMaskAreNotShown()
{
    m_edit->setInputMask("000.000 MHz, the calling frequency;_");
    m_edit->setText("145.5");
    m_edit->resize(10, 30);
    QVERIFY(m_edit->displayText() != m_edit->text());
    rest(*m_edit);
    QCOMPARE(QToolTip::text(), m_edit->text());
}

void TstLineEditTooltipAdapter::otherEventsPass_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("mouse enters") << int(QEvent::Enter);
    QTest::newRow("mouse leaves") << int(QEvent::Leave);
    QTest::newRow("status tip") << int(QEvent::StatusTip);
    QTest::newRow("what is this") << int(QEvent::WhatsThis);
    QTest::newRow("tool tip changed") << int(QEvent::ToolTipChange);
}

void TstLineEditTooltipAdapter::otherEventsPass()
{
    QFETCH(int, type);
    QCOMPARE(int(QEvent::ToolTip), 110);
    QHelpEvent event(QEvent::Type(type), QPoint(1, 1), PLACE);
    QVERIFY(!m_adapter->eventFilter(m_edit.get(), &event));
    QVERIFY(!QToolTip::isVisible());
    QTest::keyClicks(m_edit.get(), "7");
    QVERIFY(m_edit->text().contains('7'));
}

void TstLineEditTooltipAdapter::otherWidgetsPass()
{
    QLabel label("a label");
    QObject object;
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), PLACE);
    QVERIFY(!m_adapter->eventFilter(&label, &event));
    QVERIFY(!m_adapter->eventFilter(&object, &event));
    QVERIFY(!m_adapter->eventFilter(nullptr, &event));
    QVERIFY(!QToolTip::isVisible());
}

void TstLineEditTooltipAdapter::toolTipThatIsNoHelpEventPasses()
{
    QEvent event(QEvent::ToolTip);
    QVERIFY(!m_adapter->eventFilter(m_edit.get(), &event));
    QVERIFY(!QToolTip::isVisible());
}

void TstLineEditTooltipAdapter::nullIsIgnored()
{
    m_adapter->addLineEdit(nullptr);
    m_adapter->removeLineEdit(nullptr);
    m_adapter->addAllLineEdits(nullptr);
    rest(*m_edit);
    QCOMPARE(QToolTip::text(), m_edit->text());
}

void TstLineEditTooltipAdapter::removedFieldIsAsBefore()
{
    m_adapter->removeLineEdit(m_edit.get());
    rest(*m_edit);
    QCOMPARE(m_edit->m_toolTips, 1);
    QCOMPARE(QToolTip::text(), QString("frequency"));
}

void TstLineEditTooltipAdapter::removingAStrangerChangesNothing()
{
    QLineEdit other;
    m_adapter->removeLineEdit(&other);
    rest(*m_edit);
    QCOMPARE(QToolTip::text(), m_edit->text());
}

void TstLineEditTooltipAdapter::lineEditIsAddedItself()
{
    CountingEdit edit("some text that is far too long");
    edit.resize(10, 30);
    LineEditTooltipAdapter adapter(nullptr);
    adapter.addAllLineEdits(&edit);
    edit.show();
    rest(edit);
    QCOMPARE(edit.m_toolTips, 0);
    QCOMPARE(QToolTip::text(), edit.text());
}

void TstLineEditTooltipAdapter::allFieldsOfAFormAreAdded()
{
    QWidget form;
    auto* group = new QGroupBox(&form);
    auto* inner = new QGroupBox(group);
    const QList<CountingEdit*> edits = {new CountingEdit(&form), new CountingEdit(group),
                                        new CountingEdit(inner)};
    auto* spinBox = new QSpinBox(inner);
    auto* comboBox = new QComboBox(inner);
    comboBox->setEditable(true);
    auto* label = new QLabel("label", &form);
    label->setToolTip("of the label");
    m_adapter->addAllLineEdits(&form);
    form.show();
    for (CountingEdit* edit : edits) {
        edit->setText("some text that is far too long");
        edit->resize(10, 30);
        rest(*edit);
        QCOMPARE(edit->m_toolTips, 0);
        QCOMPARE(QToolTip::text(), edit->text());
        QToolTip::hideText();
    }
    spinBox->setPrefix("a prefix that is far too long ");
    comboBox->setEditText("some other text that is far too long");
    for (QLineEdit* edit : {spinBox->findChild<QLineEdit*>(), comboBox->lineEdit()}) {
        edit->resize(10, 30);
        rest(*edit);
        QCOMPARE(QToolTip::text(), edit->text());
    }
    rest(*label);
    QCOMPARE(QToolTip::text(), QString("of the label"));
}

void TstLineEditTooltipAdapter::laterFieldsAreNotAdded()
{
    QWidget form;
    m_adapter->addAllLineEdits(&form);
    auto* edit = new CountingEdit("some text that is far too long", &form);
    edit->resize(10, 30);
    rest(*edit);
    QCOMPARE(edit->m_toolTips, 1);
}

void TstLineEditTooltipAdapter::addedTwiceIsRemovedOnce()
{
    m_adapter->addLineEdit(m_edit.get());
    m_adapter->addAllLineEdits(m_edit.get());
    m_adapter->removeLineEdit(m_edit.get());
    rest(*m_edit);
    QCOMPARE(m_edit->m_toolTips, 1);
}

void TstLineEditTooltipAdapter::adapterMayGoFirst()
{
    m_adapter.reset();
    rest(*m_edit);
    QCOMPARE(m_edit->m_toolTips, 1);
    QCOMPARE(QToolTip::text(), QString("frequency"));
}

JED_TEST_MAIN(TstLineEditTooltipAdapter)
#include "tst_lineedittooltipadapter.moc"
