#include <session/frequencyaxis.h>

using Session::FrequencyAxis;

class TstFrequencyAxis : public QObject
{
    Q_OBJECT
private slots:
    void endsLieInside_data();
    void endsLieInside();
    void placesAndBack_data() { endsLieInside_data(); }
    void placesAndBack();
    void ticks_data();
    void ticks();
    void ticksAreNeverTooMany();
};

void TstFrequencyAxis::endsLieInside_data()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("to");
    QTest::newRow("a band") << Q_INT64_C(118000000) << Q_INT64_C(137000000);
    QTest::newRow("all that there is") << Q_INT64_C(0) << Q_INT64_C(40000000000);
    QTest::newRow("one frequency") << Q_INT64_C(121500000) << Q_INT64_C(121500000);
    QTest::newRow("nothing") << Q_INT64_C(0) << Q_INT64_C(0);
    QTest::newRow("below nothing") << Q_INT64_C(-5000) << Q_INT64_C(5000);
}

void TstFrequencyAxis::endsLieInside()
{
    QFETCH(qint64, from);
    QFETCH(qint64, to);
    for (const bool isLogarithmic : {true, false}) {
        FrequencyAxis axis;
        axis.setLogarithmic(isLogarithmic);
        axis.setRange(from, to);
        QVERIFY(axis.unitOf(double(qMax<qint64>(from, 0))) >= 0);
        QVERIFY(axis.unitOf(double(from)) <= axis.unitOf(double(to)));
        QVERIFY(axis.unitOf(double(to)) < 1);
    }
}

void TstFrequencyAxis::placesAndBack()
{
    QFETCH(qint64, from);
    QFETCH(qint64, to);
    for (const bool isLogarithmic : {true, false}) {
        FrequencyAxis axis;
        axis.setRange(from, to);
        axis.setLogarithmic(isLogarithmic);
        for (const double unit : {0.0, 0.25, 1.0})
            QVERIFY(qAbs(axis.unitOf(axis.frequencyAt(unit)) - unit) < 1e-6);
    }
}

void TstFrequencyAxis::ticks_data()
{
    QTest::addColumn<bool>("isLogarithmic");
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("to");
    QTest::addColumn<int>("most");
    QTest::addColumn<QVector<qint64>>("ticks");
    using Ticks = QVector<qint64>;
    QTest::newRow("equal steps") << false << Q_INT64_C(0) << Q_INT64_C(100) << 6
                                 << Ticks{0, 20, 40, 60, 80, 100};
    QTest::newRow("fewer") << false << Q_INT64_C(0) << Q_INT64_C(100) << 3 << Ticks{0, 50, 100};
    QTest::newRow("one, two, five") << true << Q_INT64_C(1000) << Q_INT64_C(100000) << 9
                                    << Ticks{1000, 2000, 5000, 10000, 20000, 50000, 100000};
    QTest::newRow("powers of ten") << true << Q_INT64_C(1000) << Q_INT64_C(100000) << 5
                                   << Ticks{1000, 10000, 100000};
    QTest::newRow("every second one")
        << true << Q_INT64_C(1000) << Q_INT64_C(100000) << 2 << Ticks{1000, 100000};
    QTest::newRow("a narrow band on a logarithmic axis")
        << true << Q_INT64_C(100000000) << Q_INT64_C(200000000) << 6
        << Ticks{100000000, 120000000, 140000000, 160000000, 180000000, 200000000};
}

void TstFrequencyAxis::ticks()
{
    QFETCH(bool, isLogarithmic);
    QFETCH(qint64, from);
    QFETCH(qint64, to);
    QFETCH(int, most);
    FrequencyAxis axis;
    axis.setRange(from, to);
    axis.setLogarithmic(isLogarithmic);
    QVector<qint64> shown = axis.ticks(0, 1, most);
    // The axis is a little longer than what it shows.
    shown.erase(std::remove_if(shown.begin(), shown.end(),
                               [from, to](qint64 tick) { return tick < from || tick > to; }),
                shown.end());
    QTEST(shown, "ticks");
}

void TstFrequencyAxis::ticksAreNeverTooMany()
{
    FrequencyAxis axis;
    axis.setRange(9000, 40000000000);
    for (const bool isLogarithmic : {true, false}) {
        axis.setLogarithmic(isLogarithmic);
        for (int most = 1; most < 40; ++most) {
            for (double width = 1; width > 1e-9; width /= 3) {
                const QVector<qint64> ticks = axis.ticks(0.5, 0.5 + width / 2, most);
                QVERIFY2(ticks.size() <= most, qPrintable(QString::number(most)));
                QVERIFY(std::is_sorted(ticks.begin(), ticks.end()));
            }
        }
    }
    QVERIFY(axis.ticks(0, 1, 0).size() <= 1);
}

QTEST_GUILESS_MAIN(TstFrequencyAxis)
#include "tst_frequencyaxis.moc"
