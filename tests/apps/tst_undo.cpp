#include <support/testmain.h>

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <kit/settingnode.h>
#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>
#include <session/savefile.h>
#include <session/settingtreemodel.h>
#include <support/settingvalues.h>

using JEDVEPLUGIN::ISubSetting;
using PluginKit::SettingNode;
using Session::Findings;
using Session::JobSession;
using Session::PluginHost;

namespace {
const QString EXAMPLES = JED_SOURCE_DIR "/installation/Jobs/";
// Above it steps are taken back instead, so that the job does not grow for ever.
constexpr int MAX_SETTINGS = 90;

// Opens what a plug-in keeps to itself.
struct OpenFactory : JEDVEPLUGIN::JEDSubSettingFactory
{
    static void addJobType(JEDVEPLUGIN::JEDSubSettingFactory* factory, JEDVE::enJOB_TYPE type)
    {
        QList<JEDVE::enJOB_TYPE>& types = factory->*&OpenFactory::jobTypes;
        if (!types.contains(type))
            types.append(type);
    }
};

QVector<ISubSetting*> allSettings(const JobSession& session)
{
    QVector<ISubSetting*> result;
    for (int i = 0; i < session.topLevelCount(); ++i)
        result.append(session.topLevel(i).setting);
    for (int i = 0; i < result.size(); ++i) {
        for (int child = 0; child < result[i]->childCount(); ++child)
            result.append(result[i]->child(child));
    }
    return result;
}

// Changes a job as a person does who has no plan.
class RandomOperator
{
public:
    RandomOperator(JobSession* session, quint32 seed)
        : m_session(session)
        , m_random(seed)
    {
    }

    // Whether something was changed.
    bool edit()
    {
        m_settings = allSettings(*m_session);
        if (m_settings.size() > MAX_SETTINGS || m_settings.isEmpty())
            return undo(nullptr);
        using Edit = bool (RandomOperator::*)(ISubSetting*);
        static const QVector<QPair<QString, Edit>> EDITS{
            {"add", &RandomOperator::add},           {"remove", &RandomOperator::remove},
            {"duplicate", &RandomOperator::copy},    {"paste", &RandomOperator::paste},
            {"rename", &RandomOperator::rename},     {"move sub-job", &RandomOperator::moveSubjob},
            {"move child", &RandomOperator::move},   {"text", &RandomOperator::takeText},
            {"value", &RandomOperator::changeValue}, {"value", &RandomOperator::changeValue},
            {"undo", &RandomOperator::undo},
        };
        const auto& edit = EDITS[number(EDITS.size())];
        if (!(this->*edit.second)(any()))
            return false;
        ++m_done[edit.first];
        return true;
    }
    // How many edits of each kind changed something.
    const QMap<QString, int>& done() const { return m_done; }

private:
    int number(int below) { return below > 0 ? m_random.bounded(below) : 0; }
    ISubSetting* any() { return m_settings[number(m_settings.size())]; }

    bool add(ISubSetting* setting)
    {
        JobSession::Factory* const factory = m_session->factoryOf(setting);
        const QStringList types = m_session->addableTypes(factory, setting);
        return m_session->add(factory, types.value(number(types.size())), setting, nullptr);
    }
    bool remove(ISubSetting* setting) { return m_session->remove(setting); }
    bool copy(ISubSetting* setting) { return m_session->duplicate(setting); }
    bool paste(ISubSetting* setting)
    {
        const QString text = m_session->textOf(any());
        return m_session->paste(text, setting) || m_session->paste(text, nullptr);
    }
    bool rename(ISubSetting* setting)
    {
        return m_session->rename(setting, QString("Name %1").arg(number(1000)));
    }
    bool moveSubjob(ISubSetting*)
    {
        const int count = m_session->topLevelCount();
        return m_session->move(nullptr, number(count), number(count + 1));
    }
    bool move(ISubSetting*)
    {
        ISubSetting* const setting = m_session->settingAt({number(m_session->topLevelCount())});
        const int count = setting->childCount();
        return count > 0 && m_session->move(setting, number(count), number(count + 1));
    }
    bool takeText(ISubSetting* setting)
    {
        const QStringList sets = setting->parameterSetNames();
        const QString set = sets.value(number(sets.size()));
        ISubSetting* const other = any();
        const QString xml =
            other->parameterSetNames().contains(set) ? other->parameterSetText(set) : QString("rubbish");
        m_session->endEditStep();
        return m_session->setParameterSet(setting, set, xml);
    }
    bool undo(ISubSetting*)
    {
        QUndoStack* const stack = m_session->undoStack();
        const int index = stack->index();
        stack->setIndex(std::max(0, index - number(4)));
        if (number(2) == 0)
            stack->setIndex(index);
        return true;
    }
    // As the control of an editor does it: rules run, and the session hears of it later.
    bool changeValue(ISubSetting* setting)
    {
        const QStringList sets = setting->parameterSetNames();
        const auto* const held = static_cast<SettingNode*>(setting)->heldSet(sets.value(number(sets.size())));
        if (!held || !held->values() || held->values()->GetValueCount() == 0)
            return false;
        const int steps = m_session->undoStack()->index();
        if (number(2) == 0)
            m_session->endEditStep();
        for (int times = number(3); times >= 0; --times)
            change(held->values()->GetValues().at(number(held->values()->GetValueCount())));
        m_session->flushEdits();
        return m_session->undoStack()->index() > steps;
    }
    void change(ValueBase* value)
    {
        if (auto* const boolean = dynamic_cast<ValueBool*>(value))
            boolean->SetValue(!boolean->GetValue());
        else if (auto* const selection = dynamic_cast<ValueSelection*>(value))
            selection->SelectIndex(number(selection->GetItemCount()));
        else if (auto* const list = dynamic_cast<StringList*>(value))
            list->SetItems(list->GetItems() + QVector<QString>{QString::number(number(100))});
        else if (dynamic_cast<const NumericView*>(value))
            value->SetText(QString::number(number(1000000)));
        else
            value->SetText(QString("Text %1").arg(number(100)));
    }

    JobSession* m_session; // Not owned.
    QRandomGenerator m_random;
    QVector<ISubSetting*> m_settings;
    QMap<QString, int> m_done;
};
} // namespace

class TstUndo : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void manyEditsAreUndone_data();
    void manyEditsAreUndone();

private:
    // Texts of the sub-jobs of an example job, for pasting.
    QStringList subjobsOf(const QString& example);
    QByteArray saved(const QString& name);

    PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    QTemporaryDir m_folder;
};

void TstUndo::initTestCase()
{
    QString error;
    QLoggingCategory::setFilterRules("jobeditorve.trace=false");
    QVERIFY2(Session::chooseInstallation(JED_SOURCE_DIR "/installation", QString(), &error),
             qPrintable(error));
    m_host.load(PluginHost::defaultFolders());
    QCOMPARE(m_host.factories().size(), 3);
    m_session = std::make_unique<JobSession>(m_host.factories());
}

QStringList TstUndo::subjobsOf(const QString& example)
{
    Findings findings;
    QStringList texts;
    if (m_session->open(EXAMPLES + example + ".xml", &findings)) {
        for (int i = 0; i < m_session->topLevelCount(); ++i)
            texts.append(m_session->textOf(m_session->settingAt({i})));
    }
    return texts;
}

QByteArray TstUndo::saved(const QString& name)
{
    Findings findings;
    QByteArray content;
    [&] {
        QVERIFY2(m_session->save(m_folder.filePath(name), &findings), qPrintable(findings.value(0).toText()));
        QVERIFY(Session::readFile(m_folder.filePath(name), &content, nullptr));
    }();
    return content;
}

void TstUndo::manyEditsAreUndone_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<bool>("isOfAllPlugins");
    for (const char* name : {"dfscan", "measurement", "production", "search", "surveillance"})
        QTest::newRow(name) << QString(name) << false;
    QTest::newRow("three plug-ins in one job") << QString("dfscan") << true;
}

void TstUndo::manyEditsAreUndone()
{
    QFETCH(QString, example);
    QFETCH(bool, isOfAllPlugins);
    Session::SettingTreeModel model(m_session.get());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QStringList further;
    if (isOfAllPlugins)
        further = subjobsOf("search") + subjobsOf("production");
    Findings findings;
    QVERIFY(m_session->open(EXAMPLES + example + ".xml", &findings));
    if (isOfAllPlugins) {
        // No kind of job is served by three of the plug-ins as they are.
        for (JobSession::Factory* factory : m_host.factories())
            OpenFactory::addJobType(factory, m_session->jobType());
        QSet<JobSession::Factory*> present{m_session->topLevel(0).factory};
        for (const QString& text : qAsConst(further)) {
            ISubSetting* const pasted = m_session->paste(text, nullptr);
            QVERIFY(pasted);
            present.insert(m_session->factoryOf(pasted));
        }
        QCOMPARE(present.size(), 3);
    }
    const QByteArray before = saved("before.xml");
    const quint32 seed = QRandomGenerator::global()->generate();
    RandomOperator random(m_session.get(), seed);
    const int count = qEnvironmentVariableIsSet("JED_SLOW_TESTS") ? 1000 : 100;
    QUndoStack* const stack = m_session->undoStack();
    const int clean = stack->index();
    QMap<int, QByteArray> drafts; // Behind a step.
    for (int edits = 0; edits < count;) {
        stack->setIndex(std::max(clean, stack->index()));
        const int present = stack->index();
        edits += random.edit();
        for (int step = present + 1; stack->index() == stack->count() && step <= present + count; ++step)
            drafts.remove(step);
        if (edits % 10 == 0)
            drafts[stack->index()] = m_session->draft();
    }
    const QMap<QString, int> done = random.done();
    stack->setIndex(clean);
    QVERIFY(!m_session->isModified());
    QVERIFY2(saved("after.xml") == before, qPrintable(QString("seed %1").arg(seed)));
    for (auto draft = drafts.cbegin(); draft != drafts.cend() && draft.key() <= stack->count(); ++draft) {
        stack->setIndex(draft.key());
        QCOMPARE(QString(m_session->draft()), QString(*draft));
    }
    if (count >= 1000) {
        for (const char* kind : {"add", "remove", "duplicate", "paste", "rename", "move sub-job",
                                 "move child", "text", "value", "undo"})
            QVERIFY2(done.value(kind) > 0, kind);
    }
}

JED_TEST_MAIN(TstUndo)
#include "tst_undo.moc"
