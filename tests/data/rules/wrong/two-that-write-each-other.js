function Gain_changed() {
    SquelchLevel.floatValue = Math.max(-20, Math.min(120, Gain.floatValue));
}
function SquelchLevel_changed() {
    Gain.floatValue = SquelchLevel.floatValue;
}
