function Gain_changed(gain) {
    Squelch.boolValue = gain > 10;
}
