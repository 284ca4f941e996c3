// Large values are set in large steps.
function Frequency_changed() {
    Frequency.stepValue = Frequency.floatValue > 10000000 ? 1000 : 100;
    SquelchLevel.stepValue = 0.25;
    Priority.stepValue = 2;
}
