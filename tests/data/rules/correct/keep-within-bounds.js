// What is computed is kept within the bounds of the object that it is for.
function within(object, value) {
    return Math.max(object.floatMinValue, Math.min(object.floatMaxValue, value));
}

function Gain_changed() {
    Level.floatValue = within(Level, Gain.floatValue - 10);
}
