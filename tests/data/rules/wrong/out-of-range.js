function Gain_changed() {
    Level.floatValue = Gain.floatValue;
}
function Overlap_changed() {
    Priority.value = Overlap.value;
    SquelchLevel.stepValue = -1;
}
