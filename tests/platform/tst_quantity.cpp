#include <jobxml/quantity.h>

using namespace JobXml;

class TstQuantity : public QObject
{
    Q_OBJECT
private slots:
    void numbers_data();
    void numbers();
    void wholeNumbers_data();
    void wholeNumbers();
    void failureTouchesNothing();
    void readable_data();
    void readable();
    void unitsAreNamed();
};

void TstQuantity::numbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("number");
    QTest::newRow("plain") << "12.5"
                           << "dB"
                           << "12.5";
    QTest::newRow("negative") << "-12.5"
                              << "dB"
                              << "-12.5";
    QTest::newRow("sign") << "+3"
                          << ""
                          << "3";
    QTest::newRow("no digit before the point") << ".5"
                                               << ""
                                               << "0.5";
    QTest::newRow("no digit behind the point") << "5."
                                               << ""
                                               << "5";
    QTest::newRow("exponent") << "1e3"
                              << ""
                              << "1000";
    QTest::newRow("blanks around") << " 7 "
                                   << ""
                                   << "7";
    QTest::newRow("unit repeated") << "30 dBµV"
                                   << "dBµV"
                                   << "30";
    QTest::newRow("prefix") << "145.5M"
                            << "Hz"
                            << "145500000";
    QTest::newRow("prefix and unit") << "145.5 MHz"
                                     << "Hz"
                                     << "145500000";
    QTest::newRow("exponent and prefix") << "1e3k"
                                         << "Hz"
                                         << "1000000";
    QTest::newRow("seconds for ms") << "1.5s"
                                    << "ms"
                                    << "1500";
    QTest::newRow("minutes for ms") << "2 min"
                                    << "ms"
                                    << "120000";
    QTest::newRow("prefix without Hz") << "5k"
                                       << "dB"
                                       << "none";
    QTest::newRow("prefix without unit") << "5k"
                                         << ""
                                         << "none";
    QTest::newRow("other unit") << "5 Hz"
                                << "ms"
                                << "none";
    QTest::newRow("case counts") << "5mhz"
                                 << "Hz"
                                 << "none";
    QTest::newRow("comma") << "145,5"
                           << ""
                           << "145.5";
    QTest::newRow("comma, prefix and unit") << "145,5 MHz"
                                            << "Hz"
                                            << "145500000";
    QTest::newRow("grouped digits") << "1,234,567"
                                    << ""
                                    << "none";
    QTest::newRow("comma and point") << "1,234.5"
                                     << ""
                                     << "none";
    QTest::newRow("empty") << ""
                           << "Hz"
                           << "none";
    QTest::newRow("unit alone") << "Hz"
                                << "Hz"
                                << "none";
    QTest::newRow("two numbers") << "1 2"
                                 << ""
                                 << "none";
    QTest::newRow("not finite") << "1e400"
                                << ""
                                << "none";
    QTest::newRow("nan") << "nan"
                         << ""
                         << "none";
    QTest::newRow("hexadecimal") << "0x10"
                                 << ""
                                 << "none";
}

void TstQuantity::numbers()
{
    QFETCH(QString, text);
    QFETCH(QString, unit);
    double number = 0;
    const bool isNumber = parseQuantity(text, unit, &number);
    QTEST(isNumber ? QString::number(number, 'g', 15) : QString("none"), "number");
}

void TstQuantity::wholeNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("number");
    QTest::newRow("plain") << "156800000"
                           << "156800000";
    QTest::newRow("more digits than a double has") << "9007199254740993"
                                                   << "9007199254740993";
    QTest::newRow("greatest") << "9223372036854775807"
                              << "9223372036854775807";
    QTest::newRow("beyond") << "9223372036854775808"
                            << "none";
    QTest::newRow("not exact in binary") << "433.92M"
                                         << "433920000";
    QTest::newRow("tenth of a Hz") << "0.1"
                                   << "none";
    QTest::newRow("half a Hz, large") << "40000000000.5"
                                      << "none";
    QTest::newRow("whole with a point") << "8.0"
                                        << "8";
    QTest::newRow("small") << "0.0001M"
                           << "100";
    QTest::newRow("negative") << "-2.5k"
                              << "-2500";
    QTest::newRow("no number") << "ten"
                               << "none";
}

void TstQuantity::wholeNumbers()
{
    QFETCH(QString, text);
    qint64 number = 0;
    const bool isNumber = parseWholeQuantity(text, "Hz", &number);
    QTEST(isNumber ? QString::number(number) : QString("none"), "number");
}

void TstQuantity::failureTouchesNothing()
{
    double number = 5;
    qint64 whole = 6;
    QVERIFY(!parseQuantity("x", "Hz", &number));
    QVERIFY(!parseWholeQuantity("0.5", "Hz", &whole));
    QCOMPARE(number, 5.0);
    QCOMPARE(whole, 6);
}

void TstQuantity::readable_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    QTest::newRow("MHz") << "156800000"
                         << "Hz"
                         << "156.8 MHz";
    QTest::newRow("kHz") << "25000"
                         << "Hz"
                         << "25 kHz";
    QTest::newRow("GHz") << "1090000000"
                         << "Hz"
                         << "1.09 GHz";
    QTest::newRow("below") << "800"
                           << "Hz"
                           << "800 Hz";
    QTest::newRow("zero") << "0"
                          << "Hz"
                          << "0 Hz";
    QTest::newRow("negative") << "-12500"
                              << "Hz"
                              << "-12.5 kHz";
    QTest::newRow("all digits stay") << "156812345"
                                     << "Hz"
                                     << "156.812345 MHz";
    QTest::newRow("seconds") << "1500"
                             << "ms"
                             << "1.5 s";
    QTest::newRow("thirds of a minute stay seconds") << "100000"
                                                     << "ms"
                                                     << "100 s";
    QTest::newRow("minutes") << "90000"
                             << "ms"
                             << "1.5 min";
    QTest::newRow("other unit") << "12.5"
                                << "dBµV"
                                << "12.5 dBµV";
    QTest::newRow("no unit") << "12"
                             << ""
                             << "12";
    QTest::newRow("no number") << "Manual"
                               << "Hz"
                               << "Manual";
}

void TstQuantity::readable()
{
    QFETCH(QString, number);
    QFETCH(QString, unit);
    QTEST(readableQuantity(number, unit), "text");
    double back = 0;
    if (parseQuantity(readableQuantity(number, unit), unit, &back))
        QCOMPARE(back, number.toDouble());
}

void TstQuantity::unitsAreNamed()
{
    QCOMPARE(unitsFor("Hz"), QStringList({"Hz", "kHz", "MHz", "GHz"}));
    QCOMPARE(unitsFor("dBµV"), QStringList({"dBµV"}));
    QCOMPARE(unitsFor(""), QStringList());
}

QTEST_GUILESS_MAIN(TstQuantity)
#include "tst_quantity.moc"
