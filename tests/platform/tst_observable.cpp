#include <support/changerecorder.h>
#include <zubase/observable.h>

#include <QRandomGenerator>

#include <stdexcept>
#include <vector>

using JedTest::ChangeRecorder;
using JedTest::takeAll;

class TstObservable : public QObject
{
    Q_OBJECT
private slots:
    void changeCodesAreFixed();
    void tellsInTheOrderOfAttaching();
    void attachingTwiceCountsOnce();
    void nullAndUnknownAreIgnored();
    void whoMadeTheChangeIsNotTold();
    void whoIsDetachedMeanwhileIsNotTold_data();
    void whoIsDetachedMeanwhileIsNotTold();
    void whoAttachesMeanwhileIsToldNextTime();
    void whoIsDetachedAndAttachedAgainComesLastNextTime();
    void aNestedNotificationTellsEverybody();
    void nestedDetachingDisturbsNoNotification();
    void deletionEndsAllNotifications();
    void hasObserversWhileTheyLeave();
    void anObserverThatThrowsLeavesNothingBehind();
    void anyMixEqualsTheReference();
};

void TstObservable::changeCodesAreFixed()
{
    QCOMPARE(int(CHANGE_STATE), 2);
    QCOMPARE(int(CHANGE_VALUE), 3);
    QCOMPARE(int(CHANGE_RANGE), 4);
    QCOMPARE(int(CHANGE_ITEMS), 5);
    QCOMPARE(int(CHANGE_PATH), 6);
}

void TstObservable::tellsInTheOrderOfAttaching()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log), c("c", &log);
    Observable observable;
    QVERIFY(observable.NotifyObservers(CHANGE_VALUE));
    QCOMPARE(takeAll(&log), QString());

    observable.AddObserver(&c);
    observable.AddObserver(&a);
    observable.AddObserver(&b);
    QVERIFY(observable.NotifyObservers(CHANGE_VALUE));
    QCOMPARE(takeAll(&log), QString("c:3 a:3 b:3"));

    observable.DeleteObserver(&c);
    observable.AddObserver(&c);
    observable.NotifyObservers(CHANGE_STATE);
    QCOMPARE(takeAll(&log), QString("a:2 b:2 c:2"));
}

void TstObservable::attachingTwiceCountsOnce()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    Observable observable;
    observable.AddObserver(&a);
    observable.AddObserver(&b);
    observable.AddObserver(&a);
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(takeAll(&log), QString("a:3 b:3"));

    observable.DeleteObserver(&a);
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(takeAll(&log), QString("b:3"));
}

void TstObservable::nullAndUnknownAreIgnored()
{
    QStringList log;
    ChangeRecorder a("a", &log), stranger("stranger", &log);
    Observable observable;
    observable.AddObserver(nullptr);
    QVERIFY(!observable.HasObservers());
    observable.AddObserver(&a);
    observable.DeleteObserver(nullptr);
    observable.DeleteObserver(&stranger);
    observable.NotifyObservers(CHANGE_VALUE, &stranger);
    QCOMPARE(takeAll(&log), QString("a:3"));
}

void TstObservable::whoMadeTheChangeIsNotTold()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log), c("c", &log);
    Observable observable;
    for (ChangeRecorder* recorder : {&a, &b, &c})
        observable.AddObserver(recorder);
    observable.NotifyObservers(CHANGE_RANGE, &b);
    QCOMPARE(takeAll(&log), QString("a:4 c:4"));
}

void TstObservable::whoIsDetachedMeanwhileIsNotTold_data()
{
    QTest::addColumn<int>("detached");
    QTest::addColumn<QString>("told");
    QTest::newRow("itself") << 1 << "a:3 b:3 c:3";
    QTest::newRow("one before") << 0 << "a:3 b:3 c:3";
    QTest::newRow("one behind") << 2 << "a:3 b:3";
}

void TstObservable::whoIsDetachedMeanwhileIsNotTold()
{
    QFETCH(int, detached);
    QFETCH(QString, told);
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log), c("c", &log);
    ChangeRecorder* const all[] = {&a, &b, &c};
    Observable observable;
    for (ChangeRecorder* recorder : all)
        observable.AddObserver(recorder);
    b.setAction([&](Observable* sender, TChangeCode) { sender->DeleteObserver(all[detached]); });

    QVERIFY(observable.NotifyObservers(CHANGE_VALUE));
    QCOMPARE(takeAll(&log), told);

    b.setAction(nullptr);
    observable.NotifyObservers(CHANGE_VALUE);
    QStringList rest{"a:3", "b:3", "c:3"};
    rest.removeAt(detached);
    QCOMPARE(takeAll(&log), rest.join(' '));
}

void TstObservable::whoAttachesMeanwhileIsToldNextTime()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    std::vector<std::unique_ptr<ChangeRecorder>> late;
    Observable observable;
    observable.AddObserver(&a);
    observable.AddObserver(&b);
    a.setAction([&](Observable* sender, TChangeCode) {
        for (int i = 0; i < 100; ++i) { // More than the list has room for.
            late.push_back(std::make_unique<ChangeRecorder>("late", &log));
            sender->AddObserver(late.back().get());
        }
    });
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(takeAll(&log), QString("a:3 b:3"));

    a.setAction(nullptr);
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(log.size(), 102);
    QCOMPARE(log.last(), QString("late:3"));
}

void TstObservable::whoIsDetachedAndAttachedAgainComesLastNextTime()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log), c("c", &log);
    Observable observable;
    for (ChangeRecorder* recorder : {&a, &b, &c})
        observable.AddObserver(recorder);
    a.setAction([&](Observable* sender, TChangeCode) {
        sender->DeleteObserver(&b);
        sender->AddObserver(&b);
    });
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(takeAll(&log), QString("a:3 c:3"));
    a.setAction(nullptr);
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(takeAll(&log), QString("a:3 c:3 b:3"));
}

void TstObservable::aNestedNotificationTellsEverybody()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log), late("late", &log);
    Observable observable;
    observable.AddObserver(&a);
    observable.AddObserver(&b);
    a.setAction([&](Observable* sender, TChangeCode code) {
        if (code != CHANGE_VALUE)
            return;
        sender->AddObserver(&late);
        sender->NotifyObservers(CHANGE_STATE);
    });
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(takeAll(&log), QString("a:3 a:2 b:2 late:2 b:3"));
}

void TstObservable::nestedDetachingDisturbsNoNotification()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log), c("c", &log), d("d", &log);
    Observable observable;
    for (ChangeRecorder* recorder : {&a, &b, &c, &d})
        observable.AddObserver(recorder);
    b.setAction([&](Observable* sender, TChangeCode code) {
        if (code == CHANGE_VALUE)
            sender->NotifyObservers(CHANGE_STATE);
        else
            sender->DeleteObserver(&a);
    });
    // The hole that the inner one leaves before the outer one's place must not shift what is still to be
    // told.
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(takeAll(&log), QString("a:3 b:3 a:2 b:2 c:2 d:2 c:3 d:3"));
    b.setAction(nullptr);
    observable.NotifyObservers(CHANGE_VALUE);
    QCOMPARE(takeAll(&log), QString("b:3 c:3 d:3"));
}

void TstObservable::deletionEndsAllNotifications()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log), c("c", &log);
    auto* const observable = new Observable;
    for (ChangeRecorder* recorder : {&a, &b, &c})
        observable->AddObserver(recorder);
    bool innerLives = true;
    a.setAction([&](Observable* sender, TChangeCode code) {
        if (code == CHANGE_VALUE)
            innerLives = sender->NotifyObservers(CHANGE_STATE);
    });
    b.setAction([](Observable* sender, TChangeCode) { delete sender; });
    QVERIFY(!observable->NotifyObservers(CHANGE_VALUE));
    QVERIFY(!innerLives);
    QCOMPARE(takeAll(&log), QString("a:3 a:2 b:2"));
}

void TstObservable::hasObserversWhileTheyLeave()
{
    QStringList log;
    ChangeRecorder a("a", &log);
    Observable observable;
    QVERIFY(!observable.HasObservers());
    observable.AddObserver(&a);
    QVERIFY(observable.HasObservers());
    bool hasObservers = true;
    a.setAction([&](Observable* sender, TChangeCode) {
        sender->DeleteObserver(&a);
        hasObservers = sender->HasObservers();
    });
    observable.NotifyObservers(CHANGE_VALUE);
    QVERIFY(!hasObservers);
    QVERIFY(!observable.HasObservers());
}

void TstObservable::anObserverThatThrowsLeavesNothingBehind()
{
    QStringList log;
    ChangeRecorder a("a", &log), b("b", &log);
    Observable observable;
    observable.AddObserver(&a);
    observable.AddObserver(&b);
    a.setAction([&](Observable* sender, TChangeCode) {
        sender->DeleteObserver(&b);
        throw std::runtime_error("observer");
    });
    QVERIFY_EXCEPTION_THROWN(observable.NotifyObservers(CHANGE_VALUE), std::runtime_error);
    a.setAction(nullptr);
    observable.AddObserver(&b);
    takeAll(&log);
    observable.NotifyObservers(CHANGE_STATE);
    QCOMPARE(takeAll(&log), QString("a:2 b:2"));
}

namespace {

/// What an observable does, in the simplest words: it tells a copy of its list and skips whoever is gone
/// meanwhile.
struct Reference
{
    struct Attachment
    {
        int who;
        int serial; // Attaching again makes another attachment.
    };

    void add(int who)
    {
        if (indexOf(who) < 0)
            list.append({who, ++lastSerial});
    }
    void remove(int who)
    {
        if (indexOf(who) >= 0)
            list.removeAt(indexOf(who));
    }
    int indexOf(int who) const
    {
        for (int i = 0; i < list.size(); ++i) {
            if (list[i].who == who)
                return i;
        }
        return -1;
    }
    bool has(const Attachment& attachment) const
    {
        const int index = indexOf(attachment.who);
        return index >= 0 && list[index].serial == attachment.serial;
    }
    template <class Tell>
    void notify(int except, Tell tell)
    {
        const QList<Attachment> copy = list;
        for (const Attachment& attachment : copy) {
            if (attachment.who != except && has(attachment))
                tell(attachment.who);
        }
    }

    QList<Attachment> list;
    int lastSerial = 0;
};

/// What observer number "who" does when it is told for the n-th time: attach, detach or notify, the same for
/// both sides since it depends on the seed only.
struct Script
{
    enum Kind { ATTACH, DETACH, NOTIFY, NOTHING };
    struct Step
    {
        Kind kind;
        int who;
    };
    Step at(int who, int time, int depth) const
    {
        QRandomGenerator random(seed + quint32(who * 1009 + time * 31));
        const int kind = random.bounded(depth < 3 ? 5 : 2);
        return {kind > 3 ? NOTIFY : Kind(kind > 1 ? NOTHING : kind), random.bounded(COUNT)};
    }

    static const int COUNT = 6;
    quint32 seed;
};

QStringList toldByReference(const Script& script)
{
    QStringList log;
    Reference reference;
    int depth = 0;
    std::function<void(int)> tell = [&](int who) {
        const Script::Step step = script.at(who, log.size(), depth);
        log.append(QString("%1:3").arg(who));
        if (step.kind == Script::ATTACH)
            reference.add(step.who);
        else if (step.kind == Script::DETACH)
            reference.remove(step.who);
        else if (step.kind == Script::NOTIFY) {
            ++depth;
            reference.notify(step.who, tell);
            --depth;
        }
    };
    for (int who = 0; who < Script::COUNT; who += 2)
        reference.add(who);
    for (int round = 0; round < 5; ++round)
        reference.notify(-1, tell);
    return log;
}

QStringList toldByObservable(const Script& script)
{
    QStringList log;
    Observable observable;
    std::vector<std::unique_ptr<ChangeRecorder>> recorders;
    int depth = 0;
    for (int who = 0; who < Script::COUNT; ++who) {
        recorders.push_back(std::make_unique<ChangeRecorder>(QString::number(who), &log));
        recorders.back()->setAction([&, who](Observable* sender, TChangeCode) {
            const Script::Step step = script.at(who, log.size() - 1, depth);
            IObserver* const observer = recorders[size_t(step.who)].get();
            if (step.kind == Script::ATTACH)
                sender->AddObserver(observer);
            else if (step.kind == Script::DETACH)
                sender->DeleteObserver(observer);
            else if (step.kind == Script::NOTIFY) {
                ++depth;
                sender->NotifyObservers(CHANGE_VALUE, observer);
                --depth;
            }
        });
    }
    for (size_t who = 0; who < Script::COUNT; who += 2)
        observable.AddObserver(recorders[who].get());
    for (int round = 0; round < 5; ++round)
        observable.NotifyObservers(CHANGE_VALUE);
    return log;
}

} // namespace

void TstObservable::anyMixEqualsTheReference()
{
    int told = 0;
    for (quint32 seed = 0; seed < 2000; ++seed) {
        const QStringList expected = toldByReference(Script{seed});
        QCOMPARE(toldByObservable(Script{seed}).join(' '), expected.join(' '));
        told += expected.size();
    }
    QVERIFY2(told > 20000, qPrintable(QString::number(told)));
}

QTEST_GUILESS_MAIN(TstObservable)
#include "tst_observable.moc"
