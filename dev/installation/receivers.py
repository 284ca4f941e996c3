"""The receivers of Skarholm, an invented coastal monitoring station: two masts by the sea, one hall of racks.

HF receivers on a loop and a whip, V/UHF receivers on two log-periodic and two discone antennas, a direction finder
with a crossed loop for HF and a ring of nine dipoles for V/UHF. Frequencies are those of real services.

Each row is one tuner property file: name, type, base resource, band (Hz), widest bandwidth (Hz) and components with
their parameter sets. A set lists what differs from the schema's defaults: a value, (value, minimum, maximum, step),
Choice(items, index), Plain(value) for a number without a range, Texts(...), or None for a field it does not offer.
"""
from tunerfile import Choice, Plain, Texts

MHZ = 1000000
KHZ = 1000
HOUR = 3600000

HF_MODES = Choice("AM", "USB", "LSB", "ISB", "CW", index=1)
HF_WIDTHS = Choice(300, 500, 1500, 2700, 6000, 9000, index=3)
VHF_WIDTHS = Choice(6000, 8000, 12500, 15000, 25000, 120000, index=3)
FFT_LENGTHS = Choice(512, 1024, 2048, 4096, 8192, index=2)


def region(west, south, east, north):
    """What a station listens to: edges in degrees."""
    return {"Region.West": west, "Region.South": south, "Region.East": east, "Region.North": north}


COAST = region(3.0, 57.0, 9.0, 60.0)
NORTH_SEA = region(-4.0, 51.0, 12.0, 62.0)


def tuner(frequency, bandwidth, channel, antenna, antenna_band, **more):
    """Tuner and antenna: the two sets of the tuner component."""
    settings = {"CenterFrequency": frequency, "Bandwidth": bandwidth, "ChannelName": channel, **more}
    path = {"AntennaName": antenna, "LowerFrequency": Plain(antenna_band[0]), "UpperFrequency": Plain(antenna_band[1]),
            "Rotator.Used": None, "Rotator.Azimuth": None, "Rotator.Elevation": None}
    return ("TunerSettingsComponent", {"TunerSettings": settings, "AntennaSettings": path})


def with_antenna(component, **values):
    component[1]["AntennaSettings"].update({name.replace("__", "."): value for name, value in values.items()})
    return component


def spectrum(span, **more):
    return ("FFTSettingsComponent", {"FFTSettings": {"Length": FFT_LENGTHS, "Span": span, **more}})


def analogue(demodulation, bandwidth, **more):
    return ("ADemComponent", {"ADemSettings": {"Demodulation": demodulation, "Bandwidth": bandwidth, **more}})


def recording(**more):
    """Recording with the storage that it fills."""
    storage = {"Keyword": Texts(("Skarholm",)), "MaximumSize": (10737418240, 1048576, 1099511627776, 1048576)}
    return ("AutoRecordingComponent", {"AutoRecordingSettings": more, "StorageSettings": storage})


def automatic(alarm, **more):
    """Automatic operation with the alarms that it raises."""
    return ("JobAutomaticSettingsComponent", {"JobAutomaticSettings": more, "AlarmSettings": alarm})


HF_LOOP = (9 * KHZ, 30 * MHZ)
DISCONE = (25 * MHZ, 1300 * MHZ)
LOG_PERIODIC = (80 * MHZ, 1300 * MHZ)

RECEIVERS = [
    # ---- HF: one rack of six receivers, shared by what is below it
    dict(file="ht720-hf.xml", name="Skarholm HF rack", type="HT720", base="HF", quantity=6, band=(9 * KHZ, 30 * MHZ),
         width=1 * MHZ, modes=["Manual", "Automatic", "Timed", "Permanent", "OnRequest"],
         connectable="HF-CH,VUHF-CH",
         components=[
             tuner(2182 * KHZ, 6000, "", "HF whip", HF_LOOP),
             spectrum(200 * KHZ),
         ]),
    dict(file="ht720-hf-1.xml", name="Maritime HF", type="HT720", base="HF-1", parent="HF", quantity=4,
         band=(415 * KHZ, 27500 * KHZ), width=200 * KHZ, modes=["Manual", "Automatic", "Timed", "Permanent"],
         connectable="HF-CH",
         optional=("DDemComponent", "AutoRecordingComponent", "CompressionSettingsComponent"),
         components=[
             with_antenna(tuner(2182 * KHZ, 10 * KHZ, "Maritime distress 2182 kHz", "HF whip", HF_LOOP, Threshold=8,
                                Reference="Satellite"),
                          AlternativeAntenna=Texts(("HF loop", "Reserve wire")), AntennaFactor=12.5),
             analogue(HF_MODES, HF_WIDTHS, BeatFrequency=(800, -5000, 5000, 10), AudioFilter="Voice"),
             ("DDemComponent", {"DDemSettings": {
                 "Modulation": "FSK2", "SymbolRate": 100, "Shift": 170, "Bandwidth": 500, "Decoder": "SITOR_B",
                 "SyncWord": Texts(("1111000011", "0000111100")), "EstimateSymbolRate": False}}),
             spectrum(20 * KHZ, Averaging="Average"),
             automatic({"Enabled": True, "Severity": "Distress", "Message": "Traffic on a distress frequency",
                        "Recipient": Texts(("Watch officer", "Rescue coordination")), "Level": 20,
                        "NeedsAcknowledgement": True}, Priority=9, Repetition="Daily",
                       OperatorGroup="Maritime watch"),
             recording(Enabled=True, SampleRate=8000, Comment="Maritime HF"),
             ("CompressionSettingsComponent", {"CompressionSettings": {"Method": "AudioCodec", "TargetRatio": 8}}),
         ]),
    dict(file="ht720-hf-2.xml", name="Aeronautical and broadcast HF", type="HT720", base="HF-2", parent="HF",
         quantity=4, band=(1500 * KHZ, 30 * MHZ), width=500 * KHZ, modes=["Manual", "Timed", "OnRequest"],
         connectable="HF-CH", optional=("ClassifierSettingsComponent", "EDSettingsComponent"),
         components=[
             tuner(5616 * KHZ, 10 * KHZ, "North Atlantic A", "HF loop", HF_LOOP, AttenuationMode="LowDistortion"),
             analogue(HF_MODES, HF_WIDTHS, CenterOffset=(1500, -5000, 5000, 50), DecayTime=(1000, 10, 5000, 10)),
             ("ClassifierSettingsComponent", {"ClassifierSettings": {
                 "Library": "HF services", "Bandwidth": 6000, "ObservationTime": (3000, 100, 60000, 100),
                 "SearchedClass": Texts(("Voice", "2-FSK", "Morse"))}}),
             ("EDSettingsComponent", {"EDSettings": {
                 "MaximumBandwidth": 12000, "MaskName": "HF broadcast",
                 "ExcludedBand": Texts(("49 m broadcast", "41 m broadcast"))}}),
             spectrum(500 * KHZ, Window="Blackman"),
             ("ActivityDetectionSettingsComponent", {
                 "ActivityDetectionSettings": {"Algorithm": "Correlation", "Bandwidth": 2700,
                                               "ExcludedFrequency": Texts(("5000000", "10000000"))},
                 "ActivityGeneration": {"Tag": Texts(("aeronautical", "HF"))}}),
         ]),
    dict(file="ht720-hf-channels.xml", name="HF channel receivers", type="HT720", base="HF-CH", quantity=16,
         band=(9 * KHZ, 30 * MHZ), width=12 * KHZ, modes=["OnRequest"],
         components=[
             tuner(8291 * KHZ, 6000, "", "HF loop", HF_LOOP, SettlingTime=(5, 0, 100, 1)),
             analogue(HF_MODES, HF_WIDTHS, Muted=True),
         ]),
    # ---- V/UHF: one rack of eight receivers, shared by what is below it
    dict(file="ht720-vuhf.xml", name="Skarholm V/UHF rack", type="HT720", base="VUHF", quantity=8,
         band=(20 * MHZ, 3000 * MHZ), width=20 * MHZ, modes=["Manual", "Automatic", "Timed", "Permanent", "OnRequest"],
         connectable="VUHF-CH",
         components=[
             tuner(156800 * KHZ, 1 * MHZ, "", "Discone 1", DISCONE),
             spectrum(10 * MHZ, UpdateInterval=(50, 20, 10000, 10)),
         ]),
    dict(file="ht720-vuhf-1.xml", name="Marine VHF", type="HT720", base="VUHF-1", parent="VUHF", quantity=6,
         band=(156 * MHZ, 162500 * KHZ), width=2 * MHZ, modes=["Manual", "Automatic", "Permanent"],
         connectable="VUHF-CH,,HF-CH", optional=("DDemComponent", "DSCSettingsComponent"),
         components=[
             with_antenna(tuner(156800 * KHZ, 25 * KHZ, "Channel 16", "Discone 1", DISCONE, Threshold=10),
                          Preamplifier=True, AlternativeAntenna=Texts(("Discone 2",))),
             analogue("FM", VHF_WIDTHS, Squelch=True, SquelchThreshold=(6, -10, 60, 1)),
             ("DDemComponent", {"DDemSettings": {
                 "Modulation": "GMSK", "SymbolRate": 9600, "Shift": None, "Bandwidth": 25 * KHZ, "Decoder": "AIS",
                 "BurstLength": (27, 0, 1000, 1), "SyncWord": Texts(("01111110",))}}),
             ("DSCSettingsComponent", {"DSCSettings": {
                 "ChannelCount": (8, 0, 16, 1), "ChannelBandwidth": 25 * KHZ, "Strategy": "PriorityFirst",
                 "ExcludedFrequency": Texts(("161975000", "162025000")),
                 "SpectralDetectorSettings.Profile": "marine-vhf",
                 "SpectralDetectorSettings.Shape": Texts(("CARRIER", "FSK2"))}}),
             ("DFLocateComponent", {"DF_Settings": {
                 "Bandwidth": 15 * KHZ, "Locate": True, "PartnerStation": Texts(("Grunnes", "Vestre Holme")),
                 "Sector.Active": True, "Sector.From": 180, "Sector.To": 330, **COAST}}),
             spectrum(2 * MHZ),
             automatic({"Enabled": True, "Trigger": "NewSignal", "Severity": "Distress",
                        "Message": "Call on channel 16", "AlarmPeriod.Weekday": Texts(("Saturday", "Sunday"))},
                       Priority=10),
             recording(Enabled=True, Trigger="Squelch", Channel=Texts(("Channel 16", "Channel 70"))),
         ]),
    dict(file="ht720-vuhf-2.xml", name="Airband", type="HT720", base="VUHF-2", parent="VUHF", quantity=4,
         band=(117975 * KHZ, 137 * MHZ), width=8 * MHZ, modes=["Manual", "Automatic", "Timed", "Permanent"],
         connectable="VUHF-CH", optional=("CompressionSettingsComponent", "DDemComponent"),
         components=[
             with_antenna(tuner(121500 * KHZ, 25 * KHZ, "Aeronautical emergency", "Discone 2", DISCONE),
                          Selection="Fixed"),
             analogue(Choice("AM", "FM", "Pulse"), VHF_WIDTHS, Squelch=True, SquelchThreshold=(4, -10, 60, 1)),
             ("DDemComponent", {"DDemSettings": {
                 "Modulation": "MSK", "SymbolRate": 2400, "Shift": None, "Bandwidth": 12500, "Decoder": "ACARS"}}),
             spectrum(8 * MHZ, Waterfall=True, NoiseFloor=True),
             ("EDSettingsComponent", {"EDSettings": {"MinimumBandwidth": 2000, "MaximumBandwidth": 25 * KHZ,
                                                     "TrackDrift": True, "MaskName": "Airband 8.33 kHz"}}),
             ("ActivityDetectionSettingsComponent", {
                 "ActivityDetectionSettings": {"Bandwidth": 8330, "ChannelLabel": "Tower"},
                 "ActivityGeneration": {"Comment": "Airband", "Threshold": 12}}),
             recording(PreTriggerTime=(500, 0, 5000, 100)),
             ("CompressionSettingsComponent", {"CompressionSettings": {
                 "Enabled": True, "Method": Choice("Lossless", "SignalAdaptive"),
                 "ExcludedContent": Texts(("Baseband", "Bearing"))}}),
         ]),
    dict(file="ht720-vuhf-3.xml", name="Short-range devices", type="HT720", base="VUHF-3", parent="VUHF", quantity=3,
         band=(400 * MHZ, 470 * MHZ), width=20 * MHZ, modes=["Manual", "Automatic", "OnRequest"],
         connectable="VUHF-CH", optional=("SignalDescriptionsComponent", "FHPJobSettingsComponent"),
         components=[
             with_antenna(tuner(433920 * KHZ, 2 * MHZ, "ISM 433 MHz", "Log-periodic west", LOG_PERIODIC,
                                GainControl="Manual", Gain=(45, 0, 90, 1)),
                          Rotator__Used=True, Rotator__Azimuth=(270, 0, 359.5, 0.5), Rotator__Elevation=0,
                          Polarization="Horizontal"),
             analogue("FM", VHF_WIDTHS, AudioFilter="NoiseReduction"),
             ("ClassifierSettingsComponent", {"ClassifierSettings": {
                 "Mode": "Continuous", "Library": "Short-range devices", "MaximumResults": Plain(5),
                 "SearchedClass": Texts(("2-ASK", "2-FSK", "GMSK"))}}),
             ("SignalDescriptionsComponent", {"SignalDescriptions": {
                 "ProfileName": "Licence-free", "FrequencyTolerance": 2500,
                 "Category": Texts(("PMR446", "Telemetry", "Remote control"))}}),
             ("FHPJobSettingsComponent", {
                 "FHPJobSettings": {"LowerFrequency": 433050 * KHZ, "UpperFrequency": 434790 * KHZ,
                                    "MinimumHopRate": 10, "MaximumHopRate": 200,
                                    "ExpectedFrequency": Texts(("433100000", "433500000", "434600000"))},
                 "ShortTime_Settings": {"MinimumDuration": 2, "MaximumDuration": 200, "SignalName": "Telemetry burst"}}),
             spectrum(2 * MHZ, Averaging="Maximum", AverageCount=(16, 1, 256, 1)),
             ("EDSettingsComponent", {"EDSettings": {"ThresholdMode": "Adaptive", "FalseAlarmRate": Plain(0.0078125)}}),
         ]),
    dict(file="ht720-vuhf-channels.xml", name="V/UHF channel receivers", type="HT720", base="VUHF-CH", quantity=24,
         band=(20 * MHZ, 3000 * MHZ), width=25 * KHZ, modes=["OnRequest"],
         components=[
             tuner(446006250, 12500, "PMR446 channel 1", "Discone 2", DISCONE),
             analogue("FM", VHF_WIDTHS),
             spectrum(25 * KHZ),
         ]),
    # ---- scanning receivers
    dict(file="trv9k-vuhf.xml", name="V/UHF scan rack", type="TRV9KScanSettings", base="VUHF", quantity=3,
         band=(20 * MHZ, 3000 * MHZ), width=20 * MHZ, modes=["Manual", "Automatic", "Timed", "Permanent"],
         components=[
             ("ScanSettingsComponent", {
                 "ScanSettings": {"Range.Name": "V/UHF", "Range.StartFrequency": 30 * MHZ,
                                  "Range.StopFrequency": 1000 * MHZ, "Mode": "Panorama"},
                 "DF_Settings": {"PartnerStation": None, **COAST},
                 "FFTSettings": {"Length": FFT_LENGTHS, "Span": 20 * MHZ},
                 "TunerSettings": {"CenterFrequency": 515 * MHZ, "Bandwidth": 20 * MHZ, "Gain": None}}),
         ]),
    dict(file="trv9k-vuhf-1.xml", name="Airband scan", type="TRV9KScanSettings", base="VUHF-1", parent="VUHF",
         quantity=2, band=(108 * MHZ, 144 * MHZ), width=10 * MHZ, modes=["Manual", "Automatic", "Permanent"],
         connectable="VUHF-CH",
         components=[
             ("ScanSettingsComponent", {
                 "ScanSettings": {"Range.Name": "Airband", "Range.StartFrequency": 118 * MHZ,
                                  "Range.StopFrequency": 136975 * KHZ,
                                  "Range.StepWidth": Choice(8333, 12500, 25000, index=2), "Range.Bandwidth": 8000,
                                  "Range.Detail.Threshold": (10, -10, 80, 0.5),
                                  "Range.Detail.DwellTime": (20, 5, 1000, 5), "HoldCriteria.Hold": True,
                                  "SuppressedFrequency": Texts(("122100000", "129900000"))},
                 "DF_Settings": {"Bandwidth": 8000, **COAST},
                 "FFTSettings": {"Length": FFT_LENGTHS, "Span": 10 * MHZ},
                 "TunerSettings": {"CenterFrequency": 127 * MHZ, "Bandwidth": 10 * MHZ}}),
         ]),
    dict(file="trv9k-vuhf-2.xml", name="Marine and land mobile scan", type="TRV9KScanSettings", base="VUHF-2",
         parent="VUHF", quantity=2, band=(144 * MHZ, 470 * MHZ), width=10 * MHZ, modes=["Manual", "Timed", "Permanent"],
         connectable="VUHF-CH",
         components=[
             ("ScanSettingsComponent", {
                 "ScanSettings": {"Range.Name": "Marine VHF", "Range.StartFrequency": 156 * MHZ,
                                  "Range.StopFrequency": 162025 * KHZ, "Range.StepWidth": Choice(12500, 25000, index=1),
                                  "Range.Bandwidth": 15 * KHZ, "Range.Detail.Threshold": (8, -10, 80, 0.5),
                                  "Range.Detail.SignalTime": (2000, 100, 60000, 100),
                                  "SuppressedFrequency": Texts(("161975000", "162025000"))},
                 "DF_Settings": {"Bandwidth": 15 * KHZ, "Locate": True,
                                 "PartnerStation": Texts(("Grunnes", "Vestre Holme")), **COAST},
                 "FFTSettings": {"Length": FFT_LENGTHS, "Span": 6 * MHZ},
                 "TunerSettings": {"CenterFrequency": 159 * MHZ, "Bandwidth": 10 * MHZ}}),
         ]),
    dict(file="trv9k-hf-1.xml", name="HF scan", type="TRV9KScanSettings", base="HF-1", quantity=1,
         band=(300 * KHZ, 30 * MHZ), width=1 * MHZ, modes=["Manual", "Automatic", "Timed"],
         components=[
             ("ScanSettingsComponent", {
                 "ScanSettings": {"Range.Name": "Maritime HF", "Range.StartFrequency": 4 * MHZ,
                                  "Range.StopFrequency": 8815 * KHZ, "Range.StepWidth": Choice(100, 500, 1000, index=2),
                                  "Range.Bandwidth": 2700, "Range.Detail.Threshold": (12, -20, 80, 1),
                                  "HoldCriteria.Hold": None, "HoldCriteria.HoldTime": None,
                                  "HoldCriteria.Resume": None},
                 "DF_Settings": {"Bandwidth": 2700, "Method": "WatsonWatt", **NORTH_SEA},
                 "FFTSettings": {"Length": FFT_LENGTHS, "Span": 1 * MHZ},
                 "TunerSettings": {"CenterFrequency": 6 * MHZ, "Bandwidth": 1 * MHZ}}),
         ]),
    # ---- direction finders
    dict(file="df.xml", name="Skarholm direction finder", type="DirectionFinder", base="DF", quantity=2,
         band=(300 * KHZ, 3000 * MHZ), width=20 * MHZ, modes=["Manual", "Automatic", "Timed", "Permanent"],
         components=[
             ("MultiSettingsComponent", {
                 "TunerSettings": {"CenterFrequency": 156800 * KHZ, "Reference": "Satellite"},
                 "ADemSettings": {"Demodulation": "FM", "Bandwidth": VHF_WIDTHS},
                 "FFTSettings": {"Length": FFT_LENGTHS, "Span": 20 * MHZ},
                 "DF_Settings": {"AzimuthCorrection": (1.5, -10, 10, 0.125), "NorthReference": "TrueNorth",
                                 **NORTH_SEA},
                 "ScanSettings": {"Range.Name": "Marine VHF", "Range.StartFrequency": 156 * MHZ,
                                  "Range.StopFrequency": 162025 * KHZ}}),
         ]),
    dict(file="df-hf.xml", name="HF crossed loop", type="DirectionFinder", base="DF-HF", parent="DF", quantity=1,
         band=(300 * KHZ, 30 * MHZ), width=500 * KHZ, modes=["Manual", "Automatic", "Timed"],
         components=[
             ("MultiSettingsComponent", {
                 "TunerSettings": {"CenterFrequency": 2182 * KHZ, "Bandwidth": 10 * KHZ, "ChannelName": "2182 kHz"},
                 "ADemSettings": {"Demodulation": HF_MODES, "Bandwidth": HF_WIDTHS},
                 "FFTSettings": {"Length": FFT_LENGTHS, "Span": 50 * KHZ},
                 "DF_Settings": {"Method": Choice("WatsonWatt"), "Bandwidth": 1000,
                                 "IntegrationTime": (500, 50, 5000, 50), "MeasureElevation": True, **NORTH_SEA},
                 "ScanSettings": {"Range.Name": "Distress HF", "Range.StartFrequency": 2 * MHZ,
                                  "Range.StopFrequency": 17 * MHZ, "Range.StepWidth": 500, "Range.Bandwidth": 1000}}),
         ]),
    dict(file="df-vuhf.xml", name="V/UHF ring of dipoles", type="DirectionFinder", base="DF-VUHF", parent="DF",
         quantity=2, band=(20 * MHZ, 1300 * MHZ), width=20 * MHZ, modes=["Manual", "Automatic", "Timed", "Permanent"],
         components=[
             ("MultiSettingsComponent", {
                 "TunerSettings": {"CenterFrequency": 121500 * KHZ, "Bandwidth": 25 * KHZ,
                                   "ChannelName": "Aeronautical emergency"},
                 "ADemSettings": {"Demodulation": Choice("AM", "FM", index=1), "Bandwidth": VHF_WIDTHS},
                 "FFTSettings": {"Length": FFT_LENGTHS, "Span": 20 * MHZ},
                 "DF_Settings": {"Method": Choice("Interferometer", "SuperResolution"), "Bandwidth": 15 * KHZ,
                                 "MinimumBearings": Plain(5), "Locate": True,
                                 "PartnerStation": Texts(("Grunnes", "Vestre Holme")), **COAST},
                 "ScanSettings": {"Range.Name": "Emergency beacons", "Range.StartFrequency": 121450 * KHZ,
                                  "Range.StopFrequency": 406100 * KHZ, "Range.StepWidth": 25 * KHZ,
                                  "Direction": "Alternating"}}),
         ]),
    # ---- without detectors
    dict(file="measuring.xml", name="Measurement receiver", type="MeasurementReceiver", base="MR-1", quantity=1,
         band=(9 * KHZ, 3000 * MHZ), width=40 * MHZ, modes=["Manual", "Timed"],
         components=[
             with_antenna(tuner(87500 * KHZ, 200 * KHZ, "FM broadcast", "Log-periodic east", LOG_PERIODIC,
                                AttenuationMode="Manual", Attenuation=(10, 0, 70, 5), Reference="External",
                                FrequencyCorrection=Plain(0.25)),
                          AntennaFactor=(8.5, 0, 40, 0.5), Rotator__Used=True, Rotator__Azimuth=(95, 0, 359.5, 0.5)),
             spectrum(10 * MHZ, Window="FlatTop", ReferenceLevel=(100, 0, 140, 1)),
             ("EDSettingsComponent", {"EDSettings": {"ThresholdMode": "Absolute", "Threshold": (30, -20, 120, 0.5)}}),
         ]),
    dict(file="recorder.xml", name="Signal recorder", type="SignalRecorder", base="REC-1", quantity=8,
         band=(9 * KHZ, 3000 * MHZ), width=20 * MHZ,
         components=[
             recording(Enabled=True, Content=Choice("Audio", "Baseband", "Spectrum", index=1), FileFormat="IQ16",
                       Trigger="Permanent", SampleRate=(2000000, 8000, 20000000, 1)),
             ("CompressionSettingsComponent", {"CompressionSettings": {"Enabled": True,
                                                                       "MaximumDataRate": Plain(8000000)}}),
             ("JobAutomaticSettingsComponent", {"JobAutomaticSettings": {
                 "StartCondition": "Time", "StartTime": "2020-01-01T06:00:00Z", "StopTime": "2020-01-01T18:00:00Z",
                 "Duration": Plain(12 * HOUR), "Repetition": Choice("Once", "Daily", "Weekly", index=1),
                 "Weekday": Texts(("Monday", "Friday"))}}),
         ]),
]
