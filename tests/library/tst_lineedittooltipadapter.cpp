#include <lineedittooltipadapter.h>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolTip>
#include <QVBoxLayout>
#include <support/testmain.h>

using JEDVEPLUGIN::LineEditTooltipAdapter;

namespace {
// Asks for the tool tip. \return whether somebody answered
bool ask(QWidget* widget)
{
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), widget->mapToGlobal(QPoint(1, 1)));
    event.setAccepted(false);
    return QCoreApplication::sendEvent(widget, &event);
}

int textWidth(const QLineEdit& edit)
{
    return QFontMetrics(edit.font()).horizontalAdvance(edit.text());
}
} // namespace

class TstLineEditTooltipAdapter : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { QToolTip::hideText(); }

    void textIsShownWhenItIsWider_data();
    void textIsShownWhenItIsWider();
    void emptyToolTipOfAFittingText();
    void removedLineEditShowsItsOwn();
    void nullIsIgnored();
    void wholeFormsAreAdded();
    void lineEditItselfIsAdded();
    void otherEventsGoOn();
    void otherWidgetsGoOn();
    void metaObjectHasNothingOfItsOwn();
};

void TstLineEditTooltipAdapter::textIsShownWhenItIsWider_data()
{
    QTest::addColumn<int>("missing"); // Pixels that the field is narrower than the text.
    QTest::addColumn<bool>("isText");
    QTest::newRow("wider field") << -20 << false;
    QTest::newRow("just fits") << 0 << false;
    QTest::newRow("one pixel too narrow") << 1 << true;
    QTest::newRow("far too narrow") << 40 << true;
}

void TstLineEditTooltipAdapter::textIsShownWhenItIsWider()
{
    QFETCH(int, missing);
    QFETCH(bool, isText);
    LineEditTooltipAdapter adapter(nullptr);
    QLineEdit edit;
    edit.setText("156.800 MHz, marine channel 16");
    edit.setToolTip("its own");
    edit.resize(textWidth(edit) - missing, 20);
    adapter.addLineEdit(&edit);
    QVERIFY(ask(&edit));
    QCOMPARE(QToolTip::text(), isText ? edit.text() : QString("its own"));
}

void TstLineEditTooltipAdapter::emptyToolTipOfAFittingText()
{
    LineEditTooltipAdapter adapter(nullptr);
    QLineEdit edit("x");
    edit.resize(200, 20);
    adapter.addLineEdit(&edit);
    QVERIFY(ask(&edit));
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TstLineEditTooltipAdapter::removedLineEditShowsItsOwn()
{
    LineEditTooltipAdapter adapter(nullptr);
    QLineEdit edit("a text that is certainly wider than its field");
    edit.setToolTip("its own");
    edit.resize(30, 20);
    adapter.addLineEdit(&edit);
    adapter.removeLineEdit(&edit);
    ask(&edit);
    QCOMPARE(QToolTip::text(), QString("its own"));
}

void TstLineEditTooltipAdapter::nullIsIgnored()
{
    LineEditTooltipAdapter adapter(nullptr);
    adapter.addLineEdit(nullptr);
    adapter.removeLineEdit(nullptr);
    adapter.addAllLineEdits(nullptr);
}

void TstLineEditTooltipAdapter::wholeFormsAreAdded()
{
    QWidget form;
    auto* const group = new QGroupBox(&form);
    auto* const inner = new QLineEdit("a text that is wider than its field", group);
    auto* const outer = new QLineEdit("another text that is wider than its field", &form);
    auto* const spinBox = new QSpinBox(&form);
    for (QLineEdit* edit : {inner, outer})
        edit->resize(30, 20);
    LineEditTooltipAdapter adapter(nullptr);
    adapter.addAllLineEdits(&form);
    QVERIFY(ask(inner));
    QCOMPARE(QToolTip::text(), inner->text());
    QVERIFY(ask(outer));
    QCOMPARE(QToolTip::text(), outer->text());
    auto* const field = spinBox->findChild<QLineEdit*>();
    field->setText("12345678901234567890");
    field->resize(10, 20);
    QVERIFY(ask(field));
    QCOMPARE(QToolTip::text(), field->text());
}

void TstLineEditTooltipAdapter::lineEditItselfIsAdded()
{
    QLineEdit edit("a text that is wider than its field");
    edit.resize(30, 20);
    LineEditTooltipAdapter adapter(nullptr);
    adapter.addAllLineEdits(&edit);
    QVERIFY(ask(&edit));
    QCOMPARE(QToolTip::text(), edit.text());
}

void TstLineEditTooltipAdapter::otherEventsGoOn()
{
    LineEditTooltipAdapter adapter(nullptr);
    QLineEdit edit("text");
    for (const QEvent::Type type : {QEvent::Enter, QEvent::FocusIn, QEvent::WhatsThis, QEvent::Timer}) {
        QEvent event(type);
        QVERIFY(!adapter.eventFilter(&edit, &event));
    }
    // Of the right type, but without a place.
    QEvent event(QEvent::ToolTip);
    QCOMPARE(int(event.type()), 110);
    QVERIFY(!adapter.eventFilter(&edit, &event));
}

void TstLineEditTooltipAdapter::otherWidgetsGoOn()
{
    LineEditTooltipAdapter adapter(nullptr);
    QWidget widget;
    QHelpEvent event(QEvent::ToolTip, QPoint(), QPoint());
    QVERIFY(!adapter.eventFilter(&widget, &event));
}

void TstLineEditTooltipAdapter::metaObjectHasNothingOfItsOwn()
{
    const QMetaObject& meta = LineEditTooltipAdapter::staticMetaObject;
    QCOMPARE(meta.className(), "JEDVEPLUGIN::LineEditTooltipAdapter");
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QObject parent;
    QCOMPARE((new LineEditTooltipAdapter(&parent))->parent(), &parent);
}

JED_TEST_MAIN(TstLineEditTooltipAdapter)
#include "tst_lineedittooltipadapter.moc"
