#include "checkedheaderview.h"
#include "frequencylistview.h"
#include "resourceselectiondialog.h"
#include "subjobwidget.h"
#include "tabwidgetex.h"

#include <support/accessiblenames.h>
#include <support/resourcedialogfixture.h>
#include <support/testmain.h>

#include <QLabel>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

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

std::unique_ptr<QWidget> frequencyList()
{
    auto view = std::make_unique<JEDVEPLUGIN::FrequencyListView>(nullptr, true, true);
    view->setModel(new QStandardItemModel(3, 2, view.get()));
    return view;
}

std::unique_ptr<QWidget> checkedHeader()
{
    auto table = std::make_unique<QTableView>();
    table->setAccessibleName("Table");
    table->setModel(new QStandardItemModel(3, 2, table.get()));
    table->setVerticalHeader(new JEDVEPLUGIN::CheckedHeaderView(Qt::Vertical, table.get()));
    return table;
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
    void tabFollowsTheEye_data() { widgets(); }
    void tabFollowsTheEye();
    void labelsBelongToFields_data() { widgets(); }
    void labelsBelongToFields();

    void aControlWithoutNameIsFound();
    void aJumpIsFound();
    void aStrayLabelIsFound();

private:
    void widgets();
};

void TstAccessibility::widgets()
{
    QTest::addColumn<MakeWidget>("make");
    QTest::newRow("SubJobWidget") << MakeWidget(subJobWidget);
    QTest::newRow("ResourceSelectionDialog") << MakeWidget(resourceDialog);
    QTest::newRow("TabWidgetEx") << MakeWidget(tabs);
    QTest::newRow("FrequencyListView") << MakeWidget(frequencyList);
    QTest::newRow("CheckedHeaderView") << MakeWidget(checkedHeader);
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

void TstAccessibility::tabFollowsTheEye()
{
    QFETCH(MakeWidget, make);
    const std::unique_ptr<QWidget> widget = make();
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    QCOMPARE(JedTest::tabJumps(widget.get()), QStringList());
}

void TstAccessibility::labelsBelongToFields()
{
    QFETCH(MakeWidget, make);
    const std::unique_ptr<QWidget> widget = make();
    QCOMPARE(JedTest::strayLabels(widget.get()), QStringList());
}

void TstAccessibility::aJumpIsFound()
{
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit first, second;
    first.setObjectName("first");
    second.setObjectName("second");
    first.setParent(&window);
    layout.addWidget(&second);
    layout.addWidget(&first);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(JedTest::tabJumps(&window), QStringList{"second after first"});
    layout.removeWidget(&second);
    layout.addWidget(&second);
    layout.activate();
    QCOMPARE(JedTest::tabJumps(&window), QStringList());
}

void TstAccessibility::aStrayLabelIsFound()
{
    QWidget window;
    QLabel label("Name:", &window);
    QCOMPARE(JedTest::strayLabels(&window), QStringList{"Name:"});
    QLineEdit edit(&window);
    label.setBuddy(&edit);
    QCOMPARE(JedTest::strayLabels(&window), QStringList());
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
