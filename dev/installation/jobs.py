"""One example job for each job type, on the receivers of receivers.py.

A sub-job takes what its receiver offers; "values" changes single fields, "without" leaves optional components out.
"""

HARBOUR = {
    "Cycles": 0, "DwellTime": 250,
    "FrequencyItem": [
        {"Frequency": 156300000, "Bandwidth": 25000, "Name": "Channel 6", "Active": True},
        {"Frequency": 156650000, "Bandwidth": 25000, "Name": "Channel 13", "Active": True},
        {"Frequency": 156800000, "Bandwidth": 25000, "Name": "Channel 16", "Active": True},
    ],
}
BEACONS = {
    "Cycles": 0,
    "TransmitterItem": [
        {"Name": "Aeronautical emergency", "Active": True,
         "Detail": {"Threshold": 10, "DwellTime": 500, "SignalTime": 10000},
         "Audio_Settings": {"Demodulation": "AM", "Bandwidth": 8000},
         "FFM_Settings": {"CenterFrequency": 121500000, "Bandwidth": 25000}},
        {"Name": "Emergency beacons", "Active": True,
         "Detail": {"Threshold": 6, "DwellTime": 1000, "SignalTime": 10000},
         "FFM_Settings": {"CenterFrequency": 406028000, "Bandwidth": 100000}},
    ],
}
LICENCE_FREE = {
    "ProfileName": "Licence-free", "MatchMode": "Best", "MinimumMatch": 70, "FrequencyTolerance": 2500,
    "ObservationTime": 2000, "ReportUnmatched": False,
    "SignalDescription": [
        {"Name": "PMR446 channel 1", "SignalClass": "Voice", "CenterFrequency": 446006250, "Bandwidth": 12500,
         "Priority": 3},
        {"Name": "Telemetry", "SignalClass": "Data", "CenterFrequency": 433920000, "Bandwidth": 200000, "Priority": 5},
    ],
}


def region(west, south, east, north):
    """Transmitters elsewhere are dropped; degrees."""
    edges = {"West": west, "South": south, "East": east, "North": north}
    return {"DF_Settings/Region.Active": True, **{f"DF_Settings/Region.{edge}": at for edge, at in edges.items()}}


def information(kind, name, comment, created):
    return {"JobType": kind, "Name": name, "Author": "Skarholm", "Comment": comment, "Created": created,
            "Priority": 5, "Station": "Skarholm"}


JOBS = [
    dict(file="production.xml",
         information=information("Production", "Channel 16 traffic", "Voice and distress calls off the coast.",
                                 "2024-03-04T08:00:00Z"),
         subjobs=[
             dict(name="Channel 16", resource=("HT720", "VUHF-1"), mode="Automatic", record="Receiver",
                  without=("DDemComponent",),
                  detectors=[{"Type": "SignalDetector", "Production": True, "RecordLocation": "Station",
                              "DSCChannels": 4, "BaseResource": "VUHF-CH"}],
                  values={"ADemSettings/Volume": 80, "AutoRecordingSettings/Comment": "Channel 16"}),
             dict(name="Navtex", resource=("HT720", "HF-1"), mode="Permanent", record="Receiver",
                  values={"TunerSettings/CenterFrequency": 518000, "TunerSettings/ChannelName": "Navtex",
                          "ADemSettings/Demodulation": "CW", "DDemSettings/MinimumQuality": 60}),
         ]),
    dict(file="search.xml",
         information=information("Search", "Airband and short-range devices", "Who is on the air today?",
                                 "2024-03-04T09:30:00Z"),
         subjobs=[
             dict(name="Airband", resource=("TRV9KScanSettings", "VUHF-1"), mode="Automatic", record="Station",
                  values={"ScanSettings/Range.StepWidth": 8333, "ScanSettings/SkipKnown": True,
                          **region(3.5, 57.5, 8.25, 59.75)}),
             dict(name="ISM 433 MHz", resource=("HT720", "VUHF-3"), mode="Manual", record="Receiver",
                  detectors=[{"Type": "HopperDetector", "AutoSeparation": True, "OnlineRecombination": True,
                              "DSCChannels": 2, "BaseResource": "VUHF-CH", "MinCoverage": 60,
                              "AutonomousSCP": [{"Type": "HT720", "BaseResource": "VUHF-3", "Count": 1}]}],
                  without=("SignalDescriptionsComponent",), settings={"SignalDescriptions": LICENCE_FREE}),
         ]),
    dict(file="surveillance.xml",
         information=information("Surveillance", "Distress watch", "Distress frequencies, day and night.",
                                 "2024-03-05T00:00:00Z"),
         subjobs=[
             dict(name="2182 kHz", resource=("HT720", "HF-1"), mode="Permanent", record="Receiver",
                  without=("DDemComponent", "CompressionSettingsComponent"),
                  values={"AlarmSettings/Delay": 500}),
             dict(name="Harbour channels", resource=("HT720", "VUHF-1"), mode="Permanent", record="Receiver",
                  without=("DSCSettingsComponent", "DDemComponent"), settings={"FrequencyListSettings": HARBOUR},
                  values=region(4.75, 57.75, 6.5, 58.75)),
             dict(name="Airband emergency", resource=("HT720", "VUHF-2"), mode="Permanent", record="Receiver",
                  without=("DDemComponent",), values={"ActivityGeneration/MinimumActivityTime": 250}),
         ]),
    dict(file="dfscan.xml",
         information=information("DFScan", "Bearings of beacons", "Bearings on emergency beacons and ships.",
                                 "2024-03-06T06:00:00Z"),
         subjobs=[
             dict(name="Beacons", resource=("DirectionFinder", "DF-VUHF"), mode="Automatic", record="Station",
                  settings={"TransmitterListSettings": BEACONS}, values={"DF_Settings/QualityThreshold": 75, **region(-2, 54, 9, 61)}),
             dict(name="Ships", resource=("TRV9KScanSettings", "VUHF-2"), mode="Timed", record="Station",
                  values={"DF_Settings/Sector.Active": True, "DF_Settings/Sector.From": 180,
                          "DF_Settings/Sector.To": 330, **region(3, 57, 8.5, 59.5),
                          "DF_Settings/Region.Corner": ["3 58", "6.5 57", "8.5 57.75", "7 58.5", "5.5 59.5"]}),
         ]),
    dict(file="measurement.xml",
         information=information("Measurement", "Broadcast levels", "Levels of the FM stations, twice a day.",
                                 "2024-03-07T12:00:00Z"),
         subjobs=[
             dict(name="FM broadcast", resource=("MeasurementReceiver", "MR-1"), mode="Timed",
                  values={"TunerSettings/CenterFrequency": 98500000, "FFTSettings/Averaging": "Average"}),
             dict(name="Samples", resource=("SignalRecorder", "REC-1"), mode="Manual",
                  values={"AutoRecordingSettings/MaximumDuration": 60000}),
         ]),
]
