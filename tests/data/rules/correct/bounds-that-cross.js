// A minimum above the maximum takes the maximum along, and the other way round; the value follows.
function Gain_changed() {
    Level.floatMinValue = 130;
    SquelchLevel.floatMaxValue = -25;
    Priority.minValue = 12;
    Overlap.maxValue = -4;
    Start.floatMaxValue = 8000;
    Stop.floatMinValue = 40000000;
    Azimuth.stepValue = 0;
}
