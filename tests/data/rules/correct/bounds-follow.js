// The bounds of one value follow another one.
function Gain_changed() {
    Level.floatMaxValue = 120 - Math.max(0, Gain.floatValue - 100);
    Level.floatMinValue = -20;
}
