// "Distress 2182" names a frequency in kHz.
function ChannelName_changed() {
    var match = /\s(\d+)$/.exec(ChannelName.stringValue);
    if (!match)
        return;
    var frequency = parseInt(match[1], 10) * 1000;
    if (frequency >= Frequency.floatMinValue && frequency <= Frequency.floatMaxValue)
        Frequency.floatValue = frequency;
}
