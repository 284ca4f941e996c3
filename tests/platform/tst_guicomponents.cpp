#include <support/accessiblenames.h>
#include <support/palettes.h>
#include <support/testmain.h>

#include <jobxml/parametersettext.h>
#include <jobxml/settings.h>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QSpinBox>
#include <quilappstartup/cfgcenter.h>
#include <reportlayer/elementtable.h>
#include <values/node.h>
#include <values/value.h>
#include <values/valuelist.h>
#include <values/valuenumeric.h>
#include <values/valueselection.h>
#include <velmogui/iguicomponent.h>
#include <velmogui/parameterseteditor.h>
#include <velmogui/valuecontrol.h>

#include <limits>

using JobXml::ParameterSetText;
using VelmoGui::IGuiComponent;
using VelmoGui::ParameterSetEditor;
using VelmoGui::ValueControl;

namespace {
const QHash<QString, QStringList> COMPONENTS = {
    {"ActivityDetectionSettingsComponent", {"ActivityDetectionSettings"}},
    {"ADemComponent", {"ADemSettings"}},
    {"ClassifierSettingsComponent", {"ClassifierSettings"}},
    {"DDemComponent", {"DDemSettings"}},
    {"DFLocateComponent", {"DF_Settings"}},
    {"DSCSettingsComponent", {"DSCSettings"}},
    {"EDSettingsComponent", {"EDSettings", "ShortTime_Settings"}},
    {"FFTSettingsComponent", {"FFTSettings"}},
    {"TunerSettingsComponent", {"TunerSettings", "AntennaSettings"}},
    {"JobAutomaticSettingsComponent", {"JobAutomaticSettings", "AlarmSettings", "ActivityGeneration"}},
    {"AutoRecordingComponent", {"AutoRecordingSettings", "StorageSettings"}},
    {"SignalDescriptionsComponent", {"SignalDescriptions"}},
    {"FHPJobSettingsComponent", {"FHPJobSettings"}},
    {"CompressionSettingsComponent", {"CompressionSettings"}},
    {"ScanSettingsComponent", {"ScanSettings", "DF_Settings", "FFTSettings", "TunerSettings"}},
    {"MultiSettingsComponent",
     {"TunerSettings", "ADemSettings", "FFTSettings", "DF_Settings", "ScanSettings"}},
};

template <typename Kind>
Kind* addNumber(Node* node, const QString& id, double min, double max, double step, double value)
{
    auto* const number = new Kind;
    number->SetName(id);
    using Number = decltype(number->GetValue());
    // The greatest whole number is none that a double can be.
    const Number limit = std::numeric_limits<Number>::max();
    number->SetMinMax(Number(min), max < double(limit) ? Number(max) : limit, Number(step));
    number->SetValue(Number(value));
    node->AddChild(number, QString());
    return number;
}

// A value of the kind that the field wants.
void addValue(Node* node, const QString& id, const REPORTGENERATOR::Field& field)
{
    using REPORTGENERATOR::FieldKind;
    ValueBase* value = nullptr;
    if (field.list)
        value = new StringList;
    else if (field.kind == FieldKind::Boolean)
        value = new ValueBool;
    else if (field.kind == FieldKind::Int)
        addNumber<NumericInt>(node, id, field.minimum().toDouble(), field.maximum().toDouble(), 1,
                              field.minimum().toDouble());
    else if (field.kind == FieldKind::Long)
        addNumber<NumericInt64>(node, id, field.minimum().toDouble(), field.maximum().toDouble(), 1,
                                field.minimum().toDouble());
    else if (field.kind == FieldKind::Float || field.kind == FieldKind::Double)
        addNumber<NumericDouble>(node, id, field.minimum().toDouble(), field.maximum().toDouble(), 0.5,
                                 field.minimum().toDouble());
    else if (field.kind == FieldKind::Enumeration) {
        auto* const selection = new ValueSelection;
        for (int i = 0; i < field.enumeration->count; ++i)
            selection->AddItem(field.enumeration->name(i), i, i);
        selection->SelectIndex(0);
        value = selection;
    } else
        value = new ValueString;
    if (value) {
        value->SetName(id);
        node->AddChild(value, QString());
    }
}

// All values of a set, as a receiver that has every field would offer them.
void fill(Node* node, const QString& set)
{
    const QStringList paths = ParameterSetText::fieldPaths(set);
    for (const QString& path : paths)
        addValue(node, path, *ParameterSetText::field(set, path));
}

// Changes a control as a user does with the keyboard.
void changeByKeyboard(QWidget* control, const QString& text)
{
    control->setFocus();
    if (qobject_cast<QCheckBox*>(control))
        QTest::keyClick(control, Qt::Key_Space);
    else if (qobject_cast<QComboBox*>(control) || qobject_cast<QAbstractSpinBox*>(control))
        QTest::keyClick(control, qobject_cast<QComboBox*>(control) ? Qt::Key_Down : Qt::Key_Up);
    else if (auto* const edit = qobject_cast<QLineEdit*>(control)) {
        edit->selectAll();
        QTest::keyClicks(edit, "7");
        QTest::keyClick(edit, Qt::Key_Return);
    } else {
        // Numbers and names of values do for every kind of list.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Insert);
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents(); // The list takes a text over from the event loop.
    }
}
} // namespace

class TstGuiComponents : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();

    void componentIsLoaded_data() { components(); }
    void componentIsLoaded();
    void numbersToChooseFromHaveTheirUnit();
    void eachSetHasAComponent();
    void eachSetIsShown_data() { sets(); }
    void eachSetIsShown();
    void eachValueIsChangedByKeyboard_data() { sets(); }
    void eachValueIsChangedByKeyboard();
    void everyControlHasAName_data() { sets(); }
    void everyControlHasAName();
    void unknownSetHasNoEditor();

    void kindOfControl();
    void frequencyIsTyped_data();
    void frequencyIsTyped();
    void whatDoesNotFitStays();
    void escapeBringsTheValueBack();
    void changesFromElsewhereAreShown();
    void rangeIsFollowed();
    void valueThatLeavesIsSurvived();
    void valueThatLeavesInACommit();
    void enumerationShowsItsTexts();
    void labelsAreBuddies();
    void groupsHaveTitles();
    void marksAreShown();
    void iconsDiffer();
    void escapeInASpinBox();
    void keysStepThroughFrequencies();
    void everyFrequencyHasALine();
    void listTakesUnits();
    void listKeepsWhatDoesNotFit();
    void listTakesCellsOfASpreadsheet();
    void eitherDecimalSign_data();
    void eitherDecimalSign();
    void readOnly();
    void toolTipFollowsRangeAndFault();
    void controlsStandInOneColumn();
    void editorClosedByItsOwnChange();
    void nothingIsCut_data();
    void nothingIsCut();

private:
    void components();
    void sets();
    IGuiComponent* load(const QString& name);
};

void TstGuiComponents::initTestCase()
{
    CfgCenter::Instance()->AddComponentFolder(JED_BINARY_DIR "/lib/jobeditorve/components");
}

void TstGuiComponents::components()
{
    QTest::addColumn<QString>("name");
    for (auto component = COMPONENTS.cbegin(); component != COMPONENTS.cend(); ++component)
        QTest::newRow(qPrintable(component.key())) << component.key();
}

void TstGuiComponents::sets()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("set");
    for (auto component = COMPONENTS.cbegin(); component != COMPONENTS.cend(); ++component) {
        for (const QString& set : *component)
            QTest::addRow("%s, %s", qPrintable(component.key()), qPrintable(set)) << component.key() << set;
    }
}

IGuiComponent* TstGuiComponents::load(const QString& name)
{
    return dynamic_cast<IGuiComponent*>(
        CfgCenter::Instance()->CreateDllInstanceByFileName(name + ".dll", QString(), false, false));
}

void TstGuiComponents::componentIsLoaded()
{
    QFETCH(QString, name);
    QCOMPARE(COMPONENTS.size(), 16);
    IGuiComponent* const component = load(name);
    QVERIFY(component);
    QCOMPARE(component->GetParameterSets(), COMPONENTS.value(name));
    QVERIFY(component->GetIcon());
    QVERIFY(!component->GetIcon()->isNull());
    QVERIFY(CfgCenter::Instance()->DestroyDllInstanceByPointer(component));
}

void TstGuiComponents::numbersToChooseFromHaveTheirUnit()
{
    Node node;
    node.SetName("ScanSettings");
    auto* const steps = new ValueSelection;
    steps->SetName("Range.StepWidth");
    steps->AddItem("12500", 12500, 1);
    steps->AddItem("automatic", 0, 2);
    node.AddChild(steps, QString());
    const ParameterSetEditor editor("ScanSettings", &node);
    const auto* const box = qobject_cast<QComboBox*>(editor.control("Range.StepWidth")->widget());
    QVERIFY(box);
    QCOMPARE(box->itemText(0), QString("12.5 kHz"));
    QCOMPARE(box->itemText(1), QString("automatic"));
}

void TstGuiComponents::eachSetHasAComponent()
{
    QStringList edited;
    for (const QStringList& sets : COMPONENTS)
        edited += sets;
    const auto sets = JobXml::parameterSets();
    for (const auto& set : sets)
        QVERIFY2(edited.contains(QLatin1String(set.name)), set.name);
}

void TstGuiComponents::eachSetIsShown()
{
    QFETCH(QString, name);
    QFETCH(QString, set);
    Node node;
    node.SetName(set);
    fill(&node, set);
    const std::unique_ptr<QWidget> widget(load(name)->CreateWidget(set, &node, nullptr));
    auto* const editor = dynamic_cast<ParameterSetEditor*>(widget.get());
    QVERIFY(editor);
    for (const QString& path : ParameterSetText::fieldPaths(set)) {
        const ValueControl* const control = editor->control(path);
        QVERIFY2(control, qPrintable(path));
        QCOMPARE(control->widget()->objectName(), set + "/" + path);
        QVERIFY2(!control->widget()->toolTip().isEmpty(), qPrintable(path));
    }
}

void TstGuiComponents::eachValueIsChangedByKeyboard()
{
    QFETCH(QString, name);
    QFETCH(QString, set);
    Node node;
    node.SetName(set);
    fill(&node, set);
    const std::unique_ptr<QWidget> widget(load(name)->CreateWidget(set, &node, nullptr));
    auto* const editor = dynamic_cast<ParameterSetEditor*>(widget.get());
    widget->show();
    QVERIFY(QTest::qWaitForWindowActive(widget.get()));
    for (const QString& path : ParameterSetText::fieldPaths(set)) {
        const auto* const number = dynamic_cast<const NumericView*>(node.GetChild(path));
        if (number && number->GetDoubleMin() >= number->GetDoubleMax())
            continue;
        const QString before = ParameterSetText::toText(node);
        const QString textBefore = node.GetChild(path)->GetText();
        const REPORTGENERATOR::Field* const field = ParameterSetText::field(set, path);
        changeByKeyboard(editor->control(path)->widget(),
                         field->enumeration ? field->enumeration->name(0)
                                            : QString::number(field->minimum().toLongLong()));
        QVERIFY2(editor->control(path)->fault().isEmpty(), qPrintable(path + editor->control(path)->fault()));
        QVERIFY2(node.GetChild(path)->GetText() != textBefore, qPrintable(path));
        const QString after = ParameterSetText::toText(node);
        QVERIFY2(after != before, qPrintable(path));
        // And back, into another tree and into this one.
        Node other;
        other.SetName(set);
        fill(&other, set);
        QVERIFY(ParameterSetText::fromText(other, after));
        QCOMPARE(other.GetChild(path)->GetText(), node.GetChild(path)->GetText());
        QVERIFY(ParameterSetText::fromText(node, before));
        QCOMPARE(node.GetChild(path)->GetText(), textBefore);
    }
}

void TstGuiComponents::everyControlHasAName()
{
    QFETCH(QString, name);
    QFETCH(QString, set);
    Node node;
    node.SetName(set);
    fill(&node, set);
    const std::unique_ptr<QWidget> widget(load(name)->CreateWidget(set, &node, nullptr));
    widget->show();
    QCOMPARE(JedTest::namelessControls(widget.get()), QStringList());
}

void TstGuiComponents::unknownSetHasNoEditor()
{
    Node node;
    QVERIFY(!load("ADemComponent")->CreateWidget("ScanSettings", &node, nullptr));
    QVERIFY(!load("ADemComponent")->CreateWidget("ADemSettings", nullptr, nullptr));
}

void TstGuiComponents::kindOfControl()
{
    Node node;
    node.SetName("Unknown");
    const QHash<QString, ValueBase*> values = {{"bool", new ValueBool},    {"selection", new ValueSelection},
                                               {"list", new StringList},   {"text", new ValueString},
                                               {"whole", new ValueInt64},  {"int", new ValueInt},
                                               {"double", new ValueDouble}};
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        (*value)->SetName(value.key());
        node.AddChild(*value, QString());
    }
    addNumber<NumericInt>(&node, "ranged", 0, 9, 1, 5);
    addNumber<NumericDouble>(&node, "stepped", 0, 9, 0.25, 5);
    addNumber<NumericDouble>(&node, "free", 0, 9, 0, 5);
    ParameterSetEditor editor("Unknown", &node);
    const auto widget = [&](const QString& id) { return editor.control(id)->widget(); };
    QVERIFY(qobject_cast<QCheckBox*>(widget("bool")));
    QVERIFY(qobject_cast<QComboBox*>(widget("selection")));
    QVERIFY(widget("list")->findChild<QListWidget*>());
    for (const char* id : {"text", "whole", "int", "double", "free"})
        QVERIFY2(qobject_cast<QLineEdit*>(widget(id)), id);
    QVERIFY(qobject_cast<QSpinBox*>(widget("ranged")));
    QCOMPARE(qobject_cast<QDoubleSpinBox*>(widget("stepped"))->decimals(), 2);
    QVERIFY(!editor.control("nothing"));
}

void TstGuiComponents::frequencyIsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("shown");
    for (const char* typed : {"145.5M", "145,5 MHz", "145500k", "145500000", "145500000 Hz", "0.1455G"})
        QTest::newRow(typed) << typed << "145500000"
                             << "145.5 MHz";
    QTest::newRow("kHz") << "8414500"
                         << "8414500"
                         << "8.4145 MHz";
    QTest::newRow("below") << "9 kHz"
                           << "9000"
                           << "9 kHz";
}

void TstGuiComponents::frequencyIsTyped()
{
    QFETCH(QString, typed);
    QFETCH(QString, value);
    QFETCH(QString, shown);
    Node node;
    node.SetName("TunerSettings");
    auto* const frequency = addNumber<NumericInt64>(&node, "CenterFrequency", 0, 3e9, 1, 1000);
    ParameterSetEditor editor("TunerSettings", &node);
    auto* const edit = qobject_cast<QLineEdit*>(editor.control("CenterFrequency")->widget());
    edit->selectAll();
    QTest::keyClicks(edit, typed);
    QCOMPARE(frequency->GetText(), QString("1000"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(frequency->GetText(), value);
    QCOMPARE(edit->text(), shown);
    QCOMPARE(editor.control("CenterFrequency")->fault(), QString());
}

void TstGuiComponents::whatDoesNotFitStays()
{
    Node node;
    node.SetName("TunerSettings");
    auto* const frequency = addNumber<NumericInt64>(&node, "CenterFrequency", 9000, 30e6, 1, 8e6);
    ParameterSetEditor editor("TunerSettings", &node);
    const ValueControl* const control = editor.control("CenterFrequency");
    auto* const edit = qobject_cast<QLineEdit*>(control->widget());
    QSignalSpy faults(control, &ValueControl::faultChanged);
    edit->selectAll();
    QTest::keyClicks(edit, "145.5M");
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(frequency->GetValue(), 8000000LL);
    QCOMPARE(edit->text(), QString("145.5M"));
    QVERIFY2(control->fault().contains("30 MHz"), qPrintable(control->fault()));
    QCOMPARE(edit->accessibleDescription(), control->fault());
    QCOMPARE(faults.size(), 1);
    edit->selectAll();
    QTest::keyClicks(edit, "10M");
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(frequency->GetValue(), 10000000LL);
    QCOMPARE(control->fault(), QString());
}

void TstGuiComponents::escapeBringsTheValueBack()
{
    Node node;
    node.SetName("TunerSettings");
    addNumber<NumericInt64>(&node, "CenterFrequency", 9000, 30e6, 1, 8e6);
    ParameterSetEditor editor("TunerSettings", &node);
    auto* const edit = qobject_cast<QLineEdit*>(editor.control("CenterFrequency")->widget());
    edit->selectAll();
    QTest::keyClicks(edit, "nonsense");
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(!editor.control("CenterFrequency")->fault().isEmpty());
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->text(), QString("8 MHz"));
    QCOMPARE(editor.control("CenterFrequency")->fault(), QString());
}

void TstGuiComponents::changesFromElsewhereAreShown()
{
    Node node;
    node.SetName("Unknown");
    auto* const number = addNumber<NumericInt>(&node, "n", 0, 100, 1, 5);
    ParameterSetEditor editor("Unknown", &node);
    const auto* const box = qobject_cast<QSpinBox*>(editor.control("n")->widget());
    number->SetValue(42);
    QCOMPARE(box->value(), 42);
}

void TstGuiComponents::rangeIsFollowed()
{
    Node node;
    node.SetName("Unknown");
    auto* const number = addNumber<NumericInt>(&node, "n", 0, 100, 5, 50);
    ParameterSetEditor editor("Unknown", &node);
    const auto* const box = qobject_cast<QSpinBox*>(editor.control("n")->widget());
    QCOMPARE(box->singleStep(), 5);
    number->SetMinMax(0, 20, 2);
    QCOMPARE(box->maximum(), 20);
    QCOMPARE(box->singleStep(), 2);
    QCOMPARE(box->value(), 20);
}

void TstGuiComponents::valueThatLeavesIsSurvived()
{
    auto node = std::make_unique<Node>();
    node->SetName("Unknown");
    addNumber<NumericInt>(node.get(), "n", 0, 100, 1, 5);
    auto* const text = new ValueString;
    text->SetName("t");
    node->AddChild(text, QString());
    ParameterSetEditor editor("Unknown", node.get());
    node.reset();
    QVERIFY(!editor.control("n")->widget()->isEnabled());
    QVERIFY(!editor.control("t")->widget()->isEnabled());
    qobject_cast<QSpinBox*>(editor.control("n")->widget())->setValue(7);
}

void TstGuiComponents::valueThatLeavesInACommit()
{
    struct Remover : IObserver
    {
        void Update(Observable*, TChangeCode code) override
        {
            if (code == CHANGE_VALUE)
                m_node.reset();
        }
        std::unique_ptr<Node> m_node = std::make_unique<Node>();
    } remover;
    remover.m_node->SetName("Unknown");
    auto* const text = new ValueString;
    text->SetName("t");
    remover.m_node->AddChild(text, QString());
    ParameterSetEditor editor("Unknown", remover.m_node.get());
    text->AddObserver(&remover);
    auto* const edit = qobject_cast<QLineEdit*>(editor.control("t")->widget());
    QTest::keyClicks(edit, "x");
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(!remover.m_node);
    QVERIFY(!edit->isEnabled());
}

void TstGuiComponents::enumerationShowsItsTexts()
{
    Node node;
    node.SetName("ADemSettings");
    fill(&node, "ADemSettings");
    ParameterSetEditor editor("ADemSettings", &node);
    int count = 0;
    for (const QString& path : ParameterSetText::fieldPaths("ADemSettings")) {
        const REPORTGENERATOR::Field* const field = ParameterSetText::field("ADemSettings", path);
        const auto* const box = qobject_cast<QComboBox*>(editor.control(path)->widget());
        if (!box || !field->enumeration)
            continue;
        ++count;
        for (int i = 0; i < box->count(); ++i)
            QCOMPARE(box->itemText(i), field->enumeration->guiText(i));
    }
    QVERIFY(count > 0);
}

void TstGuiComponents::labelsAreBuddies()
{
    Node node;
    node.SetName("TunerSettings");
    fill(&node, "TunerSettings");
    ParameterSetEditor editor("TunerSettings", &node);
    QSet<QWidget*> buddies;
    for (const QLabel* label : editor.findChildren<QLabel*>())
        buddies.insert(label->buddy());
    for (const QString& path : ParameterSetText::fieldPaths("TunerSettings"))
        QVERIFY2(buddies.contains(editor.control(path)->widget()), qPrintable(path));
}

void TstGuiComponents::groupsHaveTitles()
{
    Node node;
    node.SetName("ScanSettings");
    fill(&node, "ScanSettings");
    ParameterSetEditor editor("ScanSettings", &node);
    QStringList titles;
    for (const QGroupBox* box : editor.findChildren<QGroupBox*>())
        titles.append(box->title());
    titles.removeAll(QString());
    QVERIFY(!titles.isEmpty());
    QCOMPARE(titles.removeDuplicates(), 0);
}

void TstGuiComponents::marksAreShown()
{
    Node node;
    node.SetName("TunerSettings");
    fill(&node, "TunerSettings");
    ParameterSetEditor editor("TunerSettings", &node);
    editor.setMark("Bandwidth", "rule", "set by a rule");
    editor.setMark("nothing", "rule", "set by a rule");
    int count = 0;
    for (const QLabel* label : editor.findChildren<QLabel*>())
        count += label->text() == "rule" && !label->isHidden() && label->toolTip() == "set by a rule" ? 1 : 0;
    QCOMPARE(count, 1);
    editor.setMark("Bandwidth", QString(), QString());
    for (const QLabel* label : editor.findChildren<QLabel*>())
        QVERIFY(label->text() != "rule");
}

void TstGuiComponents::iconsDiffer()
{
    QVector<QImage> images;
    for (auto component = COMPONENTS.cbegin(); component != COMPONENTS.cend(); ++component) {
        const QImage image = load(component.key())->GetIcon()->toImage();
        QVERIFY(!images.contains(image));
        images.append(image);
    }
}

void TstGuiComponents::escapeInASpinBox()
{
    Node node;
    node.SetName("Unknown");
    auto* const number = addNumber<NumericInt>(&node, "n", 0, 100, 1, 5);
    ParameterSetEditor editor("Unknown", &node);
    auto* const box = qobject_cast<QSpinBox*>(editor.control("n")->widget());
    box->selectAll();
    QTest::keyClicks(box, "42");
    QCOMPARE(box->text(), QString("42"));
    QTest::keyClick(box, Qt::Key_Escape);
    QCOMPARE(box->text(), QString("5"));
    QCOMPARE(number->GetValue(), 5);
}

void TstGuiComponents::keysStepThroughFrequencies()
{
    Node node;
    node.SetName("TunerSettings");
    auto* const frequency = addNumber<NumericInt64>(&node, "CenterFrequency", 9000, 30e6, 25000, 29.99e6);
    ParameterSetEditor editor("TunerSettings", &node);
    auto* const edit = qobject_cast<QLineEdit*>(editor.control("CenterFrequency")->widget());
    QTest::keyClick(edit, Qt::Key_Down);
    QCOMPARE(frequency->GetValue(), 29965000LL);
    QCOMPARE(edit->text(), QString("29.965 MHz"));
    QTest::keyClick(edit, Qt::Key_Up);
    QTest::keyClick(edit, Qt::Key_Up);
    QCOMPARE(frequency->GetValue(), 30000000LL);
    frequency->SetStep(0);
    QTest::keyClick(edit, Qt::Key_Down);
    QCOMPARE(frequency->GetValue(), 30000000LL);
}

void TstGuiComponents::everyFrequencyHasALine()
{
    Node node;
    node.SetName("TunerSettings");
    addNumber<NumericDouble>(&node, "CenterFrequency", 9000, 30e6, 0.5, 8e6);
    addNumber<NumericInt>(&node, "Bandwidth", 0, 250000, 100, 6000);
    ParameterSetEditor editor("TunerSettings", &node);
    const auto text = [&](const QString& id) {
        const auto* const edit = qobject_cast<QLineEdit*>(editor.control(id)->widget());
        return edit ? edit->text() : QString();
    };
    QCOMPARE(text("CenterFrequency"), QString("8 MHz"));
    QCOMPARE(text("Bandwidth"), QString("6 kHz"));
}

void TstGuiComponents::listTakesUnits()
{
    Node node;
    node.SetName("ScanSettings");
    auto* const list = new StringList;
    list->SetName("SuppressedFrequency");
    node.AddChild(list, QString());
    list->PushBack("118000000");
    ParameterSetEditor editor("ScanSettings", &node);
    editor.show();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    QWidget* const control = editor.control("SuppressedFrequency")->widget();
    const auto* const view = control->findChild<QListWidget*>();
    QCOMPARE(view->item(0)->text(), QString("118 MHz"));
    changeByKeyboard(control, "121,5 MHz");
    QCOMPARE(list->GetItems(), (QVector<QString>{"118000000", "121500000"}));
    QCOMPARE(view->item(1)->text(), QString("121.5 MHz"));
}

void TstGuiComponents::listKeepsWhatDoesNotFit()
{
    Node node;
    node.SetName("ScanSettings");
    auto* const list = new StringList;
    list->SetName("SuppressedFrequency");
    node.AddChild(list, QString());
    ParameterSetEditor editor("ScanSettings", &node);
    editor.show();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    const ValueControl* const control = editor.control("SuppressedFrequency");
    auto* const view = control->widget()->findChild<QListWidget*>();
    changeByKeyboard(control->widget(), "channel 16");
    QCOMPARE(list->GetItemCount(), 0);
    QCOMPARE(view->count(), 1);
    QCOMPARE(view->item(0)->text(), QString("channel 16"));
    QVERIFY(control->fault().contains("channel 16"));
    QTest::keyClick(view, Qt::Key_Escape);
    QCOMPARE(view->count(), 0);
    QCOMPARE(control->fault(), QString());
}

void TstGuiComponents::listTakesCellsOfASpreadsheet()
{
    Node node;
    node.SetName("ScanSettings");
    auto* const list = new StringList;
    list->SetName("SuppressedFrequency");
    node.AddChild(list, QString());
    list->SetItems({"118000000", "119000000"});
    ParameterSetEditor editor("ScanSettings", &node);
    editor.show();
    ValueControl* const control = editor.control("SuppressedFrequency");
    auto* const view = control->widget()->findChild<QListWidget*>();
    view->setCurrentRow(0);
    QApplication::clipboard()->setText("channel 16\t243000000");
    QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(list->GetItems(), (QVector<QString>{"118000000", "119000000"}));
    QVERIFY(!control->fault().isEmpty());
    QTest::keyClick(view, Qt::Key_Escape);
    view->setCurrentRow(0);
    QApplication::clipboard()->setText("121,5 MHz\t243000000\n\n156.8 MHz\n");
    QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(list->GetItems(),
             (QVector<QString>{"118000000", "121500000", "243000000", "156800000", "119000000"}));
    QApplication::clipboard()->setText(QString());
    QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(list->GetItemCount(), 5);
    control->setReadOnly(true);
    QApplication::clipboard()->setText("1");
    QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(list->GetItemCount(), 5);
}

void TstGuiComponents::eitherDecimalSign_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("typed");
    for (const QLocale& locale : {QLocale(QLocale::English), QLocale(QLocale::German)}) {
        for (const char* typed : {"2.5", "2,5"})
            QTest::addRow("%s, %s", qPrintable(locale.name()), typed) << locale << typed;
    }
}

void TstGuiComponents::eitherDecimalSign()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, typed);
    Node node;
    node.SetName("Unknown");
    auto* const number = addNumber<NumericDouble>(&node, "n", 0, 9, 0.5, 1);
    ParameterSetEditor editor("Unknown", &node);
    auto* const box = qobject_cast<QDoubleSpinBox*>(editor.control("n")->widget());
    box->setLocale(locale);
    box->selectAll();
    QTest::keyClicks(box, typed);
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(number->GetValue(), 2.5);
}

void TstGuiComponents::readOnly()
{
    Node node;
    node.SetName("ScanSettings");
    fill(&node, "ScanSettings");
    ParameterSetEditor editor("ScanSettings", &node);
    editor.show();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    editor.setReadOnly(true);
    const QString before = ParameterSetText::toText(node);
    for (const QString& path : ParameterSetText::fieldPaths("ScanSettings"))
        changeByKeyboard(editor.control(path)->widget(), "118000000");
    QCOMPARE(ParameterSetText::toText(node), before);
    editor.setReadOnly(false);
    changeByKeyboard(editor.control("SuppressedFrequency")->widget(), "118000000");
    QVERIFY(ParameterSetText::toText(node) != before);
}

void TstGuiComponents::toolTipFollowsRangeAndFault()
{
    Node node;
    node.SetName("TunerSettings");
    auto* const frequency = addNumber<NumericInt64>(&node, "CenterFrequency", 9000, 30e6, 1, 8e6);
    ParameterSetEditor editor("TunerSettings", &node);
    const ValueControl* const control = editor.control("CenterFrequency");
    auto* const edit = qobject_cast<QLineEdit*>(control->widget());
    const QString help = ParameterSetText::field("TunerSettings", "CenterFrequency")->help();
    QCOMPARE(edit->toolTip(), help + "\n9 kHz … 30 MHz");
    QCOMPARE(edit->accessibleDescription(), help);
    frequency->SetMinMax(100000, 10000000, 1);
    QCOMPARE(edit->toolTip(), help + "\n100 kHz … 10 MHz");
    edit->selectAll();
    QTest::keyClicks(edit, "20M");
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(edit->toolTip().startsWith(control->fault()));
    bool isInline = false;
    for (const QLabel* label : editor.findChildren<QLabel*>())
        isInline = isInline || (!label->isHidden() && label->text() == control->fault());
    QVERIFY(isInline);
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->toolTip(), help + "\n100 kHz … 10 MHz");
}

void TstGuiComponents::controlsStandInOneColumn()
{
    Node node;
    node.SetName("ScanSettings");
    fill(&node, "ScanSettings");
    ParameterSetEditor editor("ScanSettings", &node);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QSet<int> columns;
    for (const char* path :
         {"Mode", "SuppressedFrequency", "Range.StartFrequency", "HoldCriteria.HoldTime"}) {
        const ValueControl* const control = editor.control(path);
        QVERIFY2(control, path);
        columns.insert(control->widget()->mapTo(&editor, QPoint()).x());
    }
    QCOMPARE(columns.size(), 1);
}

void TstGuiComponents::editorClosedByItsOwnChange()
{
    struct Closer : IObserver
    {
        void Update(Observable*, TChangeCode) override { m_editor.reset(); }
        std::unique_ptr<ParameterSetEditor> m_editor;
    } closer;
    Node node;
    node.SetName("Unknown");
    auto* const number = addNumber<NumericInt64>(&node, "n", 0, 100, 1, 5);
    closer.m_editor = std::make_unique<ParameterSetEditor>("Unknown", &node);
    ValueControl* const control = closer.m_editor->control("n");
    // Without its widget's own event on the stack, as a rule that closes the editor would do it.
    number->AddObserver(&closer);
    QVERIFY(control);
    number->SetValue(7);
    QVERIFY(!closer.m_editor);
    QCOMPARE(number->GetValue(), 7LL);
}

void TstGuiComponents::nothingIsCut_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("set");
    QTest::addColumn<bool>("dark");
    for (auto component = COMPONENTS.cbegin(); component != COMPONENTS.cend(); ++component) {
        for (const QString& set : *component) {
            for (const bool dark : {false, true})
                QTest::addRow("%s-%s-%s", qPrintable(component.key()), qPrintable(set),
                              dark ? "dark" : "light")
                    << component.key() << set << dark;
        }
    }
}

// JED_PICTURES in the environment names a folder for pictures of what is looked at.
void TstGuiComponents::nothingIsCut()
{
    QFETCH(QString, name);
    QFETCH(QString, set);
    QFETCH(bool, dark);
    JedTest::useColours(dark);
    Node node;
    node.SetName(set);
    fill(&node, set);
    QVERIFY(ParameterSetText::fromText(node, QString()));
    const std::unique_ptr<QWidget> widget(load(name)->CreateWidget(set, &node, nullptr));
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    for (const QLabel* label : widget->findChildren<QLabel*>()) {
        if (label->isVisible())
            QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
    }
    for (const QComboBox* box : widget->findChildren<QComboBox*>())
        QVERIFY2(box->width() >= box->sizeHint().width(), qPrintable(box->objectName()));
    const QImage picture = widget->grab().toImage();
    QCOMPARE(picture.pixelColor(1, 1).lightness() < 128, dark);
    const QString folder = qEnvironmentVariable("JED_PICTURES");
    if (!folder.isEmpty())
        QVERIFY(picture.save(QString("%1/%2.png").arg(folder, QString::fromUtf8(QTest::currentDataTag()))));
}

JED_TEST_MAIN(TstGuiComponents)
#include "tst_guicomponents.moc"
