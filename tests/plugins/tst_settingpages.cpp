#include "loadedplugin.h"

#include <jedabstractsubsettingfactory.h>
#include <kit/kitfactory.h>
#include <kit/settingpages.h>
#include <support/testmain.h>

#include <QMenu>
#include <QScrollArea>
#include <QTabBar>

using JedTest::subjobOn;
using JEDVEPLUGIN::ISubSetting;
using PluginKit::KitFactory;
using PluginKit::SettingPages;
using PluginKit::SettingType;
using VelmoGui::TABWIDGET_INTERNAL::AddButton;

/// Settings with several kinds of pages: which there are, which can come and which can go.
class TstSettingPages : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { JedTest::useStation(); }
    void init();

    void eachSetHasAPage();
    void onlyOptionalPagesCanBeClosed();
    void closedPageTakesItsSetAway();
    void pageIsClosedByKeyboard();
    void addedPageHasTheDefaultsOfTheReceiver();
    void pagesFollowTheSets();
    void theLastSetStays();
    void setsOfOtherTypesAreRefused();
    void readOnlyPagesNeitherComeNorGo();

private:
    QStringList labels() const;
    QStringList offered() const;
    bool isClosable(int index) const;

    std::unique_ptr<KitFactory> m_factory;
    ISubSetting* m_node = nullptr;
    SettingPages* m_pages = nullptr;
};

void TstSettingPages::init()
{
    PluginKit::PluginDeclaration declaration;
    declaration.name = "Kit";
    declaration.jobTypes = {JEDVE::JOB_TYPE_SEARCH};
    declaration.resourceTypes = QStringList("HT720");
    SettingType subjob;
    subjob.type = PluginKit::SUB_JOB;
    subjob.children = QStringList("General");
    SettingType general;
    general.type = "General";
    general.displayName = "General";
    general.parameterSets =
        QStringList{"JobAutomaticSettings", "AutoRecordingSettings", "CompressionSettings", "EDSettings"};
    declaration.types = {subjob, general};
    m_factory = std::make_unique<KitFactory>(declaration);
    JedTest::TraceRecorder traces;
    m_factory->initialize("/Test/", nullptr);
    ISubSetting* const above = m_factory->readSubjob(subjobOn("HT720", "HF-1"), nullptr);
    m_node = m_factory->createSubSetting("General", above);
    QVERIFY(m_node);
    m_pages = qobject_cast<SettingPages*>(m_node->getWidget());
    QVERIFY(m_pages);
}

QStringList TstSettingPages::labels() const
{
    QStringList result;
    for (int i = 0; i < m_pages->count(); ++i)
        result << m_pages->widget(i)->objectName();
    return result;
}

QStringList TstSettingPages::offered() const
{
    QStringList result;
    for (const QAction* action : m_pages->findChild<AddButton*>()->menu()->actions())
        result << action->text();
    return result;
}

bool TstSettingPages::isClosable(int index) const
{
    const QWidget* const button = m_pages->tabBar()->tabButton(index, QTabBar::RightSide);
    return button && button->width() > 0 && button->isEnabled();
}

void TstSettingPages::eachSetHasAPage()
{
    QCOMPARE(labels(), (QStringList{"JobAutomaticSettings", "AutoRecordingSettings", "CompressionSettings"}));
    QCOMPARE(labels(), m_node->parameterSetNames());
    QCOMPARE(offered(), QStringList()); // The receiver has no emission detector.
    QVERIFY(!m_pages->accessibleName().isEmpty());
}

void TstSettingPages::onlyOptionalPagesCanBeClosed()
{
    QVERIFY(!isClosable(0));
    QVERIFY(isClosable(1));
    QVERIFY(isClosable(2));
}

void TstSettingPages::closedPageTakesItsSetAway()
{
    QSignalSpy changed(m_factory.get(), &KitFactory::stateChanged);
    emit m_pages->tabCloseRequested(1);
    QCOMPARE(m_node->parameterSetNames(), (QStringList{"JobAutomaticSettings", "CompressionSettings"}));
    QCOMPARE(labels(), m_node->parameterSetNames());
    QCOMPARE(m_node->parameterSetText("AutoRecordingSettings"), QString());
    QCOMPARE(offered().size(), 1);
    QVERIFY(changed.count() > 0);
    JobXml::Subjob written;
    QVERIFY(m_factory->writeSubjob(m_factory->topLevelSettings().first(), written, nullptr));
    QVERIFY(!written.GetXmlString().contains("AutoRecordingSettings"));
    QVERIFY(written.GetXmlString().contains("CompressionSettings"));

    emit m_pages->tabCloseRequested(0); // One that the receiver always has.
    emit m_pages->tabCloseRequested(7);
    QCOMPARE(m_node->parameterSetNames().size(), 2);
}

void TstSettingPages::pageIsClosedByKeyboard()
{
    m_pages->show();
    QVERIFY(QTest::qWaitForWindowActive(m_pages));
    m_pages->setCurrentIndex(2);
    m_pages->tabBar()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(m_node->parameterSetNames(), (QStringList{"JobAutomaticSettings", "AutoRecordingSettings"}));
    QVERIFY(m_pages->findChild<AddButton*>()->focusPolicy() & Qt::TabFocus);
}

void TstSettingPages::addedPageHasTheDefaultsOfTheReceiver()
{
    const QString before = m_node->parameterSetText("CompressionSettings");
    emit m_pages->tabCloseRequested(2);
    emit m_pages->si_addTab("no such page");
    QCOMPARE(m_pages->count(), 2);
    emit m_pages->si_addTab(offered().value(0));
    QCOMPARE(m_pages->count(), 3);
    QCOMPARE(m_pages->currentIndex(), 2);
    QCOMPARE(m_node->parameterSetText("CompressionSettings"), before);
    QCOMPARE(offered(), QStringList());
}

void TstSettingPages::pagesFollowTheSets()
{
    const QString before = m_node->parameterSetText("AutoRecordingSettings");
    QVERIFY(m_node->setParameterSetText("AutoRecordingSettings", QString()));
    QCOMPARE(m_pages->count(), 2);
    QVERIFY(m_node->setParameterSetText("AutoRecordingSettings", before));
    QCOMPARE(labels(), (QStringList{"JobAutomaticSettings", "AutoRecordingSettings", "CompressionSettings"}));
    QCOMPARE(m_node->parameterSetText("AutoRecordingSettings"), before);
}

void TstSettingPages::theLastSetStays()
{
    QVERIFY(m_node->setParameterSetText("AutoRecordingSettings", QString()));
    QVERIFY(m_node->setParameterSetText("CompressionSettings", QString()));
    QVERIFY(!m_node->setParameterSetText("JobAutomaticSettings", QString()));
    QCOMPARE(labels(), QStringList("JobAutomaticSettings"));
}

void TstSettingPages::setsOfOtherTypesAreRefused()
{
    const QString text = m_node->parameterSetText("CompressionSettings");
    QVERIFY(!m_node->setParameterSetText("TunerSettings", "<TunerSettings/>"));
    QVERIFY(!m_node->setParameterSetText("TunerSettings", QString()));
    QVERIFY(m_node->setParameterSetText("CompressionSettings", QString()));
    QVERIFY(!m_node->setParameterSetText("CompressionSettings", "<rubbish"));
    QVERIFY(m_node->setParameterSetText("CompressionSettings", text));
}

void TstSettingPages::readOnlyPagesNeitherComeNorGo()
{
    emit m_pages->tabCloseRequested(2);
    m_factory->setReadOnly(true);
    QVERIFY(!m_pages->findChild<AddButton*>()->isEnabled());
    QVERIFY(!isClosable(1));
    auto* const area = qobject_cast<QScrollArea*>(m_pages->widget(1));
    QVERIFY(area && !area->widget()->isEnabled());
    m_factory->setReadOnly(false);
    QVERIFY(m_pages->findChild<AddButton*>()->isEnabled());
    QVERIFY(isClosable(1));
    QVERIFY(!isClosable(0));
    QVERIFY(area->widget()->isEnabled());
}

JED_TEST_MAIN(TstSettingPages)
#include "tst_settingpages.moc"
