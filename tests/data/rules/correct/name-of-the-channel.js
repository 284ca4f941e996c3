// A text put together from numbers and names.
function Frequency_changed() {
    ChannelName.stringValue = Demodulation.GetCurrentName() + " " + (Frequency.floatValue / 1000).toFixed(1) + " kHz";
}
