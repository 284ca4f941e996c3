#include "resourceselectiondialog.h"
#include "subjobwidget.h"

#include <jobxml/job.h>
#include <jobxml/settings.h>
#include <jobxml/tunerproperties.h>
#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <quilappstartup/translationcenter.h>
#include <QXmlStreamReader>
#include <reportlayer/elementtable.h>
#include <reportlayer/fieldaccess.h>
#include <support/palettes.h>
#include <support/pseudotranslator.h>
#include <support/testmain.h>
#include <values/node.h>
#include <values/value.h>
#include <values/valuelist.h>
#include <velmogui/parameterseteditor.h>

using JedTest::PseudoTranslator;
using JEDVEPLUGIN::ResourceSelectionDialog;
using JEDVEPLUGIN::SubJobWidget;
using REPORTGENERATOR::ElementTable;
using REPORTGENERATOR::Field;
using VelmoGui::ParameterSetEditor;

namespace {
const char* const GERMAN = JED_SOURCE_DIR "/translations/jobeditorve_de.ts";
const char* const FOLDER = JED_BINARY_DIR "/lib/jobeditorve/translations";

struct Message
{
    QString source;
    QString translation;
    bool isFinished = true;
};

QVector<Message> messages()
{
    QVector<Message> result;
    QFile file(GERMAN);
    if (!file.open(QIODevice::ReadOnly))
        return result;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            result.append({reader.readElementText(), QString()});
        else if (reader.isStartElement() && reader.name() == QLatin1String("translation")) {
            result.last().isFinished = !reader.attributes().hasAttribute("type");
            result.last().translation = reader.readElementText();
        }
    }
    return result;
}

QStringList placeholders(const QString& text)
{
    QStringList result;
    for (int number = 1; number < 10; ++number) {
        if (text.contains(QString("%%1").arg(number)))
            result.append(QString::number(number));
    }
    return result;
}

// All tables that can be reached from the roots of the files and from the parameter sets.
void collectTables(const ElementTable& table, QSet<const ElementTable*>* tables)
{
    if (tables->contains(&table))
        return;
    tables->insert(&table);
    for (int i = 0; i < table.fieldCount; ++i) {
        if (table.fields[i].element)
            collectTables(*table.fields[i].element, tables);
    }
}

QSet<const ElementTable*> allTables()
{
    QSet<const ElementTable*> tables;
    collectTables(JobXml::Job().table(), &tables);
    collectTables(JobXml::TunerProperties().table(), &tables);
    const auto sets = JobXml::parameterSets();
    for (const auto& set : sets)
        collectTables(*set.table, &tables);
    return tables;
}

// Fields that show texts of all kinds.
void fill(Node* node)
{
    const REPORTGENERATOR::ParameterSet* const set = JobXml::findParameterSet(node->GetName());
    const QStringList paths = REPORTGENERATOR::fieldPaths(*set->table);
    for (const QString& path : paths) {
        ValueBase* value = new ValueString;
        if (REPORTGENERATOR::findField(*set->table, path)->list) {
            delete value;
            value = new StringList;
        }
        value->SetName(path);
        node->AddChild(value);
    }
}

// What the user reads in the widget.
QStringList shownTexts(const QWidget& widget)
{
    QStringList texts;
    for (const QLabel* label : widget.findChildren<QLabel*>())
        texts << label->text() << label->toolTip();
    for (const QAbstractButton* button : widget.findChildren<QAbstractButton*>())
        texts << button->text() << button->toolTip();
    for (const QGroupBox* box : widget.findChildren<QGroupBox*>())
        texts << box->title();
    texts << widget.windowTitle();
    texts.removeAll(QString());
    texts.removeAll(QStringLiteral("+"));
    texts.removeAll(QStringLiteral("\u2212"));
    return texts;
}

QStringList bypassing(const QWidget& widget)
{
    QStringList result;
    const QStringList texts = shownTexts(widget);
    for (const QString& text : texts) {
        if (!PseudoTranslator::isTranslated(text))
            result << text;
    }
    return result;
}

QStringList cutLabels(const QWidget& widget)
{
    QStringList result;
    for (const QLabel* label : widget.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->wordWrap() && label->width() < label->sizeHint().width())
            result << label->text();
    }
    return result;
}

std::unique_ptr<QWidget> subJobWidget()
{
    return std::make_unique<SubJobWidget>(true, true, nullptr);
}

std::unique_ptr<QWidget> resourceDialog()
{
    return std::make_unique<ResourceSelectionDialog>(
        QList<std::shared_ptr<JEDVEPLUGIN::ResourceDescription>>(), true, true, true, QStringList(), nullptr);
}
} // namespace

class TstTranslations : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();

    void germanIsFinished();
    void germanKeepsPlaceholdersAndEnds();
    void everyFieldTextHasAGermanOne();
    void everyNameOfAValueHasAGermanOne();

    void editorsAreTranslated_data() { sets(); }
    void editorsAreTranslated();
    void widgetsAreTranslated_data() { widgets(); }
    void widgetsAreTranslated();
    void germanEditorsAreNotCut_data() { sets(); }
    void germanEditorsAreNotCut();
    void germanWidgetsAreNotCut_data() { widgets(); }
    void germanWidgetsAreNotCut();

private:
    void sets();
    void widgets();
    void show(QWidget* widget, const QString& name);

    PseudoTranslator m_pseudo;
};

using MakeWidget = std::unique_ptr<QWidget> (*)();
Q_DECLARE_METATYPE(MakeWidget)

void TstTranslations::initTestCase()
{
    TranslationCenter::Instance()->AddFolder(FOLDER);
    JedTest::useColours(false);
}

void TstTranslations::cleanup()
{
    QCoreApplication::removeTranslator(&m_pseudo);
    TranslationCenter::Instance()->SetLanguage(QString());
}

void TstTranslations::sets()
{
    QTest::addColumn<QString>("set");
    const auto sets = JobXml::parameterSets();
    for (const auto& set : sets)
        QTest::newRow(set.name) << QString::fromLatin1(set.name);
}

void TstTranslations::widgets()
{
    QTest::addColumn<MakeWidget>("make");
    QTest::newRow("SubJobWidget") << MakeWidget(subJobWidget);
    QTest::newRow("ResourceSelectionDialog") << MakeWidget(resourceDialog);
}

// JED_PICTURES in the environment names a folder for pictures of what is looked at.
void TstTranslations::show(QWidget* widget, const QString& name)
{
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
    const QString folder = qEnvironmentVariable("JED_PICTURES");
    if (!folder.isEmpty())
        QVERIFY(widget->grab().save(QString("%1/%2.png").arg(folder, name)));
}

void TstTranslations::germanIsFinished()
{
    const QVector<Message> all = messages();
    QVERIFY(all.size() > 800);
    QStringList unfinished;
    for (const Message& message : all) {
        if (!message.isFinished || message.translation.isEmpty())
            unfinished << message.source;
    }
    QCOMPARE(unfinished, QStringList());
}

void TstTranslations::germanKeepsPlaceholdersAndEnds()
{
    const QVector<Message> all = messages();
    for (const Message& message : all) {
        QCOMPARE(placeholders(message.translation), placeholders(message.source));
        QVERIFY2(message.translation.endsWith('.') == message.source.endsWith('.'),
                 qPrintable(message.source));
        QVERIFY2(message.translation.startsWith(' ') == message.source.startsWith(' '),
                 qPrintable(message.source));
    }
}

void TstTranslations::everyFieldTextHasAGermanOne()
{
    QTranslator german;
    QVERIFY(german.load(QStringLiteral("jobeditorve_de"), FOLDER));
    const QSet<const ElementTable*> tables = allTables();
    QVERIFY(tables.size() > 40);
    QStringList missing;
    for (const ElementTable* table : tables) {
        for (int i = 0; i < table->fieldCount; ++i) {
            const Field& field = table->fields[i];
            for (const char* text : {field.labelText, field.helpText}) {
                if (text && german.translate(field.context, text).isEmpty())
                    missing << text;
            }
        }
    }
    QCOMPARE(missing, QStringList());
}

void TstTranslations::everyNameOfAValueHasAGermanOne()
{
    QTranslator german;
    QVERIFY(german.load(QStringLiteral("jobeditorve_de"), FOLDER));
    QSet<const REPORTGENERATOR::EnumTable*> enumerations;
    const QSet<const ElementTable*> tables = allTables();
    for (const ElementTable* table : tables) {
        for (int i = 0; i < table->fieldCount; ++i)
            enumerations.insert(table->fields[i].enumeration);
    }
    enumerations.remove(nullptr);
    QVERIFY(enumerations.size() > 20);
    QStringList missing;
    for (const REPORTGENERATOR::EnumTable* enumeration : qAsConst(enumerations)) {
        for (int i = 0; i < enumeration->count; ++i) {
            if (german.translate(enumeration->context, enumeration->guiTexts[i]).isEmpty())
                missing << enumeration->guiTexts[i];
        }
    }
    QCOMPARE(missing, QStringList());
}

void TstTranslations::editorsAreTranslated()
{
    QFETCH(QString, set);
    QCoreApplication::installTranslator(&m_pseudo);
    Node node;
    node.SetName(set);
    fill(&node);
    ParameterSetEditor editor(set, &node);
    show(&editor, "pseudo-" + set);
    QCOMPARE(bypassing(editor), QStringList());
    QCOMPARE(cutLabels(editor), QStringList());
}

void TstTranslations::widgetsAreTranslated()
{
    QFETCH(MakeWidget, make);
    QCoreApplication::installTranslator(&m_pseudo);
    const std::unique_ptr<QWidget> widget = make();
    show(widget.get(), QString("pseudo-%1").arg(QTest::currentDataTag()));
    QVERIFY(shownTexts(*widget).size() > 10);
    QCOMPARE(bypassing(*widget), QStringList());
    QCOMPARE(cutLabels(*widget), QStringList());
}

void TstTranslations::germanEditorsAreNotCut()
{
    QFETCH(QString, set);
    QVERIFY(TranslationCenter::Instance()->SetLanguage("de"));
    Node node;
    node.SetName(set);
    fill(&node);
    ParameterSetEditor editor(set, &node);
    show(&editor, "de-" + set);
    QCOMPARE(cutLabels(editor), QStringList());
}

void TstTranslations::germanWidgetsAreNotCut()
{
    QFETCH(MakeWidget, make);
    QVERIFY(TranslationCenter::Instance()->SetLanguage("de"));
    const std::unique_ptr<QWidget> widget = make();
    show(widget.get(), QString("de-%1").arg(QTest::currentDataTag()));
    QCOMPARE(cutLabels(*widget), QStringList());
    QVERIFY(shownTexts(*widget).contains("Basisressource"));
}

JED_TEST_MAIN(TstTranslations)
#include "tst_translations.moc"
