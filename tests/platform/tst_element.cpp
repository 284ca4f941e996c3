#include <reportlayer/rgexception.h>
#include <sampleelements/sample.h>
#include <type_traits>

using namespace Sample;

namespace {
// Made while the program starts, in whatever order.
const Station EARLY_STATION;
const int EARLY_NUMBER = Station::NameTokind(QStringLiteral("At sea"));
const QStringList EARLY_NAMES = Detail::fieldTable().fields ? Station::Getkinds() : QStringList();
} // namespace

/// Accessors, what counts as set, copying and merging.
class TstElement : public QObject
{
    Q_OBJECT
private slots:
    void elementsCanBeMadeBeforeMain();
    void freshElementHasDefaultsAndNothingSet();
    void settersSetAndResetClears();
    void getterGivesTheOneElementInside();
    void changingGetterSetsNothing();
    void setterBelowSetsTheElementsAbove();
    void loadingSetsTheElement();
    void emptyTextMakesTheElementUnset();
    void referencesStayValid();
    void listsAreSetWhileTheyHoldSomething();
    void enumerationsConvertBothWays();
    void unknownEnumerationNumberChangesNothing();
    void choiceIsNumberedFromZero();
    void choiceFollowsTheSetter();
    void readingAnotherAlternativeKeepsTheChoice();
    void copiesAreDeepAndIndependent();
    void assigningToItselfChangesNothing();
    void movedFromElementCanBeUsedAgain();
    void elementsCanBeKeptInVectors();
    void takeOverReplacesWhatIsSet();
    void takeOverKeepsWhatIsUnset();
    void takeOverMergesChildElements();
    void takeOverReplacesLists();
    void takeOverReplacesTheAlternative();
    void takeOverOfAnotherClassIsRefused();
    void takeOverOfItselfChangesNothing();
    void parameterSetsAreRegistered();
    void tablesDescribeTheFields();
    void textsAreTranslatedWhenAskedFor();
    void exceptionCarriesItsMessage();
};

void TstElement::elementsCanBeMadeBeforeMain()
{
    QVERIFY(!EARLY_STATION.isSet());
    QCOMPARE(EARLY_STATION.Getcount(), 5);
    QCOMPARE(EARLY_NUMBER, 1);
    QCOMPARE(EARLY_NAMES, QStringList({"Fixed", "At sea"}));
}

void TstElement::freshElementHasDefaultsAndNothingSet()
{
    const Station station;
    QVERIFY(!station.isSet());
    QVERIFY(station.Getname().isNull());
    QCOMPARE(static_cast<int>(station.Getkind()), -1);
    QCOMPARE(station.Getdemodulation(), Station::DEMODULATION_FM);
    QCOMPARE(station.Getcount(), 5);
    QCOMPARE(station.Getactive(), true);
    QCOMPARE(station.GetFrequency(), Q_INT64_C(145000000));
    QCOMPARE(station.GetLevel(), 0.0);
    QCOMPARE(station.GetArea().GetDetail().GetThreshold(), 6.5);
    QCOMPARE(station.GetChannel().size(), 0);
    QCOMPARE(station.GetSignal().GetChoiceSignal(), -1);
    QVERIFY(!station.IsnameSet());
    QVERIFY(!station.IscountSet());
    QVERIFY(!station.IsFrequencySet());
    QVERIFY(!station.IsAreaSet());
    QVERIFY(!station.IsChannelSet());
    QVERIFY(station.GetInitialVersionLoaded().isNull());
}

void TstElement::settersSetAndResetClears()
{
    Station station;
    station.Setcount(7);
    station.SetRemark(QString());
    station.SetLevel(-0.5);
    station.SetGain(0.25F);
    station.SetCounter(Q_INT64_C(-9000000000));
    QVERIFY(station.isSet() && station.IscountSet() && station.IsRemarkSet() && station.IsLevelSet());
    QCOMPARE(station.Getcount(), 7);
    QCOMPARE(station.GetLevel(), -0.5);
    QCOMPARE(station.GetGain(), 0.25F);
    QCOMPARE(station.GetCounter(), Q_INT64_C(-9000000000));
    QVERIFY(!station.IsOffsetSet());
    station.Resetcount();
    station.ResetRemark();
    station.ResetLevel();
    QVERIFY(!station.IscountSet() && !station.IsRemarkSet() && !station.IsLevelSet() && station.IsGainSet());
    QCOMPARE(station.Getcount(), 5);
    QCOMPARE(station.GetLevel(), 0.0);
    station.ResetOffset();
    QVERIFY(!station.IsOffsetSet());
}

void TstElement::getterGivesTheOneElementInside()
{
    Station station;
    Range& area = station.GetArea();
    QCOMPARE(&station.GetArea(), &area);
    area.SetLow(100);
    QCOMPARE(&qAsConst(station).GetArea(), &area);
    QCOMPARE(qAsConst(station).GetArea().GetLow(), Q_INT64_C(100));
}

void TstElement::changingGetterSetsNothing()
{
    Station station;
    station.GetScan().GetDetail();
    station.GetChannel();
    station.GetSignal().GetDigital();
    QVERIFY(!station.isSet());
    QVERIFY(!station.IsScanSet());
    QVERIFY(!station.GetScan().IsDetailSet());
    QVERIFY(!station.IsChannelSet());
    QCOMPARE(station.GetSignal().GetChoiceSignal(), -1);
}

void TstElement::setterBelowSetsTheElementsAbove()
{
    Station station;
    station.GetScan().GetDetail().SetDwellTime(20);
    QVERIFY(station.isSet() && station.IsScanSet() && station.GetScan().IsDetailSet());
    QVERIFY(!station.IsAreaSet());
    station.ResetScan();
    QVERIFY(!station.IsScanSet() && !station.GetScan().IsDetailSet());
    QVERIFY(!station.GetScan().GetDetail().IsDwellTimeSet());
}

void TstElement::loadingSetsTheElement()
{
    Station station;
    QVERIFY(station.GetScan().SetXmlString("<Range/>", false));
    QVERIFY(station.IsScanSet());
    QVERIFY(!station.GetScan().IsLowSet());
}

void TstElement::emptyTextMakesTheElementUnset()
{
    Station station;
    station.GetScan().SetLow(5);
    QVERIFY(station.GetScan().SetXmlString(QString(), false));
    QVERIFY(!station.IsScanSet());
    QVERIFY(!station.GetScan().IsLowSet());
    station.GetScan().SetLow(5);
    QVERIFY(station.GetScan().SetXmlString(QLatin1String(""), false));
    QVERIFY(!station.IsScanSet());
    station.GetScan().SetLow(5);
    QVERIFY(!station.GetScan().SetXmlString(QString(), true));
    QCOMPARE(station.GetScan().GetLow(), Q_INT64_C(5));
}

void TstElement::referencesStayValid()
{
    Station station;
    Range& area = station.GetArea();
    Detail& detail = area.GetDetail();
    QVector<Channel>& channels = station.GetChannel();
    QVERIFY(
        station.SetXmlString("<Station name=\"a\"><Area><Low>1</Low><Detail><Threshold>2</Threshold></Detail>"
                             "</Area><Channel id=\"x\"/></Station>",
                             false));
    QCOMPARE(area.GetLow(), Q_INT64_C(1));
    QCOMPARE(detail.GetThreshold(), 2.0);
    QCOMPARE(channels.size(), 1);
    Station other;
    other.GetArea().SetLow(9);
    station = other;
    QCOMPARE(area.GetLow(), Q_INT64_C(9));
    QVERIFY(!area.IsDetailSet() && !detail.isSet());
    QCOMPARE(channels.size(), 0);
    detail.SetDwellTime(3);
    QCOMPARE(station.GetArea().GetDetail().GetDwellTime(), 3);
    station.ResetArea();
    station.reset();
    area.SetLow(4);
    QCOMPARE(station.GetArea().GetLow(), Q_INT64_C(4));
}

void TstElement::listsAreSetWhileTheyHoldSomething()
{
    Station station;
    station.AppendTag("a");
    station.AppendMode(Station::MODE_J3E_USB);
    station.AppendStep(-3);
    station.AppendWeight(0.1F);
    QVERIFY(station.IsTagSet() && station.IsModeSet() && station.IsStepSet() && station.IsWeightSet());
    QCOMPARE(station.GetMode(), QVector<Station::Mode>({Station::MODE_J3E_USB}));
    Channel channel;
    channel.Setid("one");
    station.AppendChannel(channel);
    station.GetChannel().append(channel);
    station.GetChannel()[1].Setid("two");
    QCOMPARE(station.GetChannel().at(0).Getid(), QString("one"));
    QCOMPARE(station.GetChannel().at(1).Getid(), QString("two"));
    station.SetTag({"b", "c"});
    QCOMPARE(station.GetTag(), QVector<QString>({"b", "c"}));
    station.ResetTag();
    station.GetStep().clear();
    QVERIFY(!station.IsTagSet() && !station.IsStepSet() && station.IsChannelSet());
}

void TstElement::enumerationsConvertBothWays()
{
    QCOMPARE(Station::kindToName(Station::KIND_FIXED), QString("Fixed"));
    QCOMPARE(Station::kindToName(Station::KIND_AT_SEA), QString("At sea"));
    QVERIFY(Station::kindToName(static_cast<Station::kind>(-1)).isNull());
    QVERIFY(Station::kindToName(static_cast<Station::kind>(2)).isNull());
    QCOMPARE(Station::NameTokind("At sea"), Station::KIND_AT_SEA);
    QCOMPARE(static_cast<int>(Station::NameTokind("at sea")), -1);
    QCOMPARE(static_cast<int>(Station::NameTokind(QString())), -1);
    QCOMPARE(Station::GetModes(), QStringList({"AM", "FM", "J3E-USB"}));
    QCOMPARE(Station::GetGUIModes(), QStringList({"Amplitude", "Frequency", "J3E-USB"}));
    QCOMPARE(Station::Getdemodulations(), Station::GetModes());
}

void TstElement::unknownEnumerationNumberChangesNothing()
{
    Station station;
    station.Setkind(static_cast<Station::kind>(-1));
    station.Setkind(static_cast<Station::kind>(2));
    QVERIFY(!station.IskindSet());
    station.Setkind(Station::KIND_AT_SEA);
    station.Setkind(static_cast<Station::kind>(-1));
    QCOMPARE(station.Getkind(), Station::KIND_AT_SEA);
}

void TstElement::choiceIsNumberedFromZero()
{
    QCOMPARE(Signal::ChoiceSignalToName(0), QString("Analog"));
    QCOMPARE(Signal::ChoiceSignalToName(2), QString("Silence"));
    QVERIFY(Signal::ChoiceSignalToName(-1).isNull());
    QVERIFY(Signal::ChoiceSignalToName(3).isNull());
    const char* const texts[] = {"<Signal><Analog/></Signal>", "<Signal><Digital/></Signal>",
                                 "<Signal label=\"x\"><Silence/></Signal>"};
    for (int i = 0; i < 3; ++i) {
        Signal signal;
        QVERIFY(signal.SetXmlString(QLatin1String(texts[i]), false));
        QCOMPARE(signal.GetChoiceSignal(), i);
        QCOMPARE(signal.IsAnalogSet(), i == 0);
        QCOMPARE(signal.IsDigitalSet(), i == 1);
        QCOMPARE(signal.IsSilenceSet(), i == 2);
    }
}

void TstElement::choiceFollowsTheSetter()
{
    Signal signal;
    signal.Setlabel("x");
    QCOMPARE(signal.GetChoiceSignal(), -1);
    signal.GetAnalog().Setdeviation(5);
    QCOMPARE(signal.GetChoiceSignal(), 0);
    signal.GetDigital().SetRate(1200);
    QCOMPARE(signal.GetChoiceSignal(), 1);
    QVERIFY(!signal.IsAnalogSet());
    QCOMPARE(signal.GetAnalog().Getdeviation(), 0);
    QCOMPARE(signal.GetChoiceSignal(), 1);
    signal.SetSilence(Silence());
    QCOMPARE(signal.GetChoiceSignal(), 2);
    signal.ResetDigital();
    QCOMPARE(signal.GetChoiceSignal(), 2);
    signal.ResetSilence();
    QCOMPARE(signal.GetChoiceSignal(), -1);
    QCOMPARE(signal.Getlabel(), QString("x"));
}

void TstElement::readingAnotherAlternativeKeepsTheChoice()
{
    Signal signal;
    signal.GetAnalog().Setdeviation(5);
    signal.GetDigital();
    signal.GetSilence();
    QCOMPARE(signal.GetChoiceSignal(), 0);
    QCOMPARE(qAsConst(signal).GetAnalog().Getdeviation(), 5);
    QCOMPARE(qAsConst(signal).GetDigital().GetRate(), 0);
    QCOMPARE(signal.GetAnalog().Getdeviation(), 5);
}

void TstElement::copiesAreDeepAndIndependent()
{
    Station station;
    QVERIFY(station.SetXmlString(
        "<Station version=\"1.1\" name=\"a\" other=\"o\"><Frequency>1</Frequency><Area><Low>1"
        "</Low></Area><Tag>t</Tag><Channel id=\"c\"/><Signal><Analog/></Signal></Station>",
        true));
    const QString text = station.GetXmlString(true);
    Station copy(station);
    QCOMPARE(copy.GetXmlString(true), text);
    QCOMPARE(copy.GetInitialVersionLoaded(), QString("1.1"));
    copy.GetArea().SetLow(2);
    copy.GetChannel()[0].Setid("d");
    copy.AppendTag("u");
    copy.GetSignal().GetDigital().SetRate(1);
    QCOMPARE(station.GetXmlString(true), text);
    station = copy;
    QCOMPARE(station.GetXmlString(true), copy.GetXmlString(true));
}

void TstElement::assigningToItselfChangesNothing()
{
    Station station;
    station.Setname("a");
    station.GetArea().SetLow(3);
    const Station& same = station;
    station = same;
    QCOMPARE(station.Getname(), QString("a"));
    QCOMPARE(station.GetArea().GetLow(), Q_INT64_C(3));
}

void TstElement::movedFromElementCanBeUsedAgain()
{
    static_assert(std::is_nothrow_move_constructible<Station>::value, "moving must be cheap");
    Station station;
    station.Setname("a");
    Station moved(std::move(station));
    QCOMPARE(moved.Getname(), QString("a"));
    station = Station();
    station.Setcount(1);
    QCOMPARE(station.Getcount(), 1);
    QVERIFY(!station.IsnameSet());
}

void TstElement::elementsCanBeKeptInVectors()
{
    QVector<Channel> channels;
    for (int i = 0; i < 100; ++i) {
        Channel channel;
        channel.Setid(QString::number(i));
        channel.GetDetail().SetDwellTime(i);
        channels.append(channel);
    }
    channels.remove(0, 10);
    channels.insert(5, Channel());
    QCOMPARE(channels.at(0).Getid(), QString("10"));
    QVERIFY(!channels.at(5).isSet());
    QCOMPARE(channels.last().GetDetail().GetDwellTime(), 99);
}

void TstElement::takeOverReplacesWhatIsSet()
{
    Station ours;
    ours.Setname("a");
    ours.SetLevel(1);
    Station other;
    other.Setname("b");
    other.Setkind(Station::KIND_AT_SEA);
    other.SetCounter(7);
    QVERIFY(ours.TakeOver(other));
    QCOMPARE(ours.Getname(), QString("b"));
    QCOMPARE(ours.Getkind(), Station::KIND_AT_SEA);
    QCOMPARE(ours.GetCounter(), Q_INT64_C(7));
}

void TstElement::takeOverKeepsWhatIsUnset()
{
    Station ours;
    QVERIFY(ours.SetXmlString(
        "<Station name=\"a\" count=\"1\" other=\"o\"><!--c--><Level>1</Level></Station>", false));
    const QString text = ours.GetXmlString();
    QVERIFY(ours.TakeOver(Station()));
    QCOMPARE(ours.GetXmlString(), text);
    Station unset;
    QVERIFY(unset.TakeOver(Station()));
    QVERIFY(!unset.isSet());
}

void TstElement::takeOverMergesChildElements()
{
    Station ours;
    ours.GetScan().SetLow(1);
    ours.GetScan().GetDetail().SetDwellTime(10);
    Station other;
    other.GetScan().SetHigh(2);
    other.GetScan().GetDetail().SetThreshold(3);
    QVERIFY(ours.TakeOver(other));
    QCOMPARE(ours.GetScan().GetLow(), Q_INT64_C(1));
    QCOMPARE(ours.GetScan().GetHigh(), Q_INT64_C(2));
    QCOMPARE(ours.GetScan().GetDetail().GetDwellTime(), 10);
    QCOMPARE(ours.GetScan().GetDetail().GetThreshold(), 3.0);
    QVERIFY(!ours.IsAreaSet());
}

void TstElement::takeOverReplacesLists()
{
    Station ours;
    ours.SetTag({"a", "b"});
    ours.SetStep({1, 2});
    Station other;
    other.SetTag({"c"});
    QVERIFY(ours.TakeOver(other));
    QCOMPARE(ours.GetTag(), QVector<QString>({"c"}));
    QCOMPARE(ours.GetStep(), QVector<int>({1, 2}));
}

void TstElement::takeOverReplacesTheAlternative()
{
    Signal ours;
    ours.Setlabel("x");
    ours.GetAnalog().Setdeviation(5);
    Signal other;
    other.GetDigital().SetRate(1200);
    QVERIFY(ours.TakeOver(other));
    QCOMPARE(ours.GetChoiceSignal(), 1);
    QCOMPARE(ours.GetDigital().GetRate(), 1200);
    QCOMPARE(ours.Getlabel(), QString("x"));
    QVERIFY(ours.TakeOver(Signal()));
    QCOMPARE(ours.GetChoiceSignal(), 1);
}

void TstElement::takeOverOfAnotherClassIsRefused()
{
    Range ours;
    ours.SetLow(1);
    Detail other;
    other.SetDwellTime(2);
    QVERIFY(!ours.TakeOver(other));
    QCOMPARE(ours.GetLow(), Q_INT64_C(1));
}

void TstElement::takeOverOfItselfChangesNothing()
{
    Station station;
    station.SetTag({"a"});
    const QString text = station.GetXmlString();
    QVERIFY(station.TakeOver(station));
    QCOMPARE(station.GetXmlString(), text);
}

void TstElement::parameterSetsAreRegistered()
{
    QCOMPARE(parameterSets().size(), 1);
    const REPORTGENERATOR::ParameterSet* set = findParameterSet("DetailSettings");
    QVERIFY(set != nullptr);
    QCOMPARE(set->table, &Detail::fieldTable());
    QCOMPARE(set->label(), QString("Details"));
    const std::unique_ptr<REPORTGENERATOR::IRGObject> made(set->table->create());
    QVERIFY(dynamic_cast<Detail*>(made.get()) != nullptr);
    QVERIFY(findParameterSet("detailsettings") == nullptr);
}

void TstElement::tablesDescribeTheFields()
{
    const REPORTGENERATOR::ElementTable& table = Station::fieldTable();
    QCOMPARE(&Station().table(), &table);
    QVERIFY(table.documentRoot && !table.choice && Signal::fieldTable().choice);
    QCOMPARE(QString(Range::fieldTable().elementName), QString("Range"));
    QVERIFY(Range::fieldTable().accepts("Area") && Range::fieldTable().accepts("Range"));
    QVERIFY(!Range::fieldTable().accepts("area"));
    QCOMPARE(table.fieldIndex("none"), -1);
    const REPORTGENERATOR::Field& frequency = table.fields[table.fieldIndex("Frequency")];
    QCOMPARE(frequency.label(), QString("Frequency"));
    QCOMPARE(frequency.unit(), QString("Hz"));
    QCOMPARE(frequency.help(), QString());
    QCOMPARE(frequency.minimum(), QVariant(Q_INT64_C(0)));
    QCOMPARE(frequency.maximum(), QVariant(Q_INT64_C(3000000000)));
    QCOMPARE(frequency.defaultValue(), QVariant(Q_INT64_C(145000000)));
    const REPORTGENERATOR::Field& count = table.fields[table.fieldIndex("count")];
    QCOMPARE(count.label(), QString("count"));
    QCOMPARE(count.minimum(), QVariant(std::numeric_limits<int>::min()));
    QVERIFY(!table.fields[table.fieldIndex("Tag")].minimum().isValid());
    QVERIFY(!table.fields[table.fieldIndex("Tag")].defaultValue().isValid());
    const REPORTGENERATOR::Field& threshold = Detail::fieldTable().fields[0];
    QCOMPARE(threshold.unit(), QStringLiteral("dB\u00b5V"));
    QCOMPARE(threshold.minimum(), QVariant(-20.0));
}

void TstElement::textsAreTranslatedWhenAskedFor()
{
    class Upper : public QTranslator
    {
    public:
        QString translate(const char* context, const char* text, const char*, int) const override
        {
            return QLatin1String(context) == QLatin1String("Sample") ? QString::fromUtf8(text).toUpper()
                                                                     : QString();
        }
        bool isEmpty() const override { return false; }
    };
    Upper upper;
    QVERIFY(QCoreApplication::installTranslator(&upper));
    QCOMPARE(Station::GetGUIModes(), QStringList({"AMPLITUDE", "FREQUENCY", "J3E-USB"}));
    QCOMPARE(Station::GetModes(), QStringList({"AM", "FM", "J3E-USB"}));
    QCOMPARE(Detail::fieldTable().fields[0].help(), QString("OPENS ABOVE IT."));
    QCOMPARE(findParameterSet("DetailSettings")->label(), QString("DETAILS"));
    QCoreApplication::removeTranslator(&upper);
    QCOMPARE(Detail::fieldTable().fields[0].help(), QString("Opens above it."));
}

void TstElement::exceptionCarriesItsMessage()
{
    try {
        throw REPORTGENERATOR::RGException(QStringLiteral("invalid \u00b5"));
    } catch (const std::exception& failure) {
        QCOMPARE(QString::fromUtf8(failure.what()), QStringLiteral("invalid \u00b5"));
        QCOMPARE(dynamic_cast<const REPORTGENERATOR::RGException&>(failure).GetMessage(),
                 QStringLiteral("invalid \u00b5"));
    }
}

QTEST_GUILESS_MAIN(TstElement)
#include "tst_element.moc"
