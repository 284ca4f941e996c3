#include "resourceselectiondialog.h"
#include "subjobwidget.h"
#include "tabwidgetex.h"

#include <support/accessiblenames.h>
#include <support/resourcedialogfixture.h>
#include <support/testmain.h>

#include <QLabel>
#include <QLineEdit>

using JEDVEPLUGIN::ResourceSelectionDialog;
using JEDVEPLUGIN::SubJobWidget;

namespace {
std::unique_ptr<QWidget> subJobWidget()
{
    return std::make_unique<SubJobWidget>(true, true, nullptr);
}

std::unique_ptr<QWidget> resourceDialog()
{
    const QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>> resources = {
        JedTest::receiver("HT720", "A")};
    return std::make_unique<ResourceSelectionDialog>(resources, true, true, true, QStringList(), nullptr);
}

std::unique_ptr<QWidget> tabs()
{
    auto widget = std::make_unique<VelmoGui::TabWidgetEx>(nullptr);
    widget->addTab(new QLabel, "One");
    return widget;
}

using MakeWidget = std::unique_ptr<QWidget> (*)();
} // namespace
Q_DECLARE_METATYPE(MakeWidget)

class TstAccessibility : public QObject
{
    Q_OBJECT
private slots:
    void everyControlHasAName_data() { widgets(); }
    void everyControlHasAName();
    void aControlWithoutNameIsFound();

private:
    void widgets();
};

void TstAccessibility::widgets()
{
    QTest::addColumn<MakeWidget>("make");
    QTest::newRow("SubJobWidget") << MakeWidget(subJobWidget);
    QTest::newRow("ResourceSelectionDialog") << MakeWidget(resourceDialog);
    QTest::newRow("TabWidgetEx") << MakeWidget(tabs);
}

void TstAccessibility::everyControlHasAName()
{
    QFETCH(MakeWidget, make);
    const std::unique_ptr<QWidget> widget = make();
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    const QString nameless = JedTest::namelessControls(widget.get()).join("\n");
    QCOMPARE(nameless, QString());
}

void TstAccessibility::aControlWithoutNameIsFound()
{
    QWidget window;
    auto* const edit = new QLineEdit(&window);
    QCOMPARE(JedTest::namelessControls(&window), QStringList{"QLineEdit "});
    QLabel label("Name", &window);
    label.setBuddy(edit);
    QCOMPARE(JedTest::namelessControls(&window), QStringList());
}

JED_TEST_MAIN(TstAccessibility)
#include "tst_accessibility.moc"
