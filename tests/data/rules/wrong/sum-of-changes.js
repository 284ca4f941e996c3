var sum = 0;
function Gain_changed() {
    sum = sum + Gain.floatValue;
    Squelch.boolValue = sum > 100;
}
