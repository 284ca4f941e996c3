// A local variable may have the name of an object, which is then out of sight in that function.
function average(Gain, Level) {
    var Span = (Gain + Level) / 2;
    return Span;
}

function Gain_changed() {
    Level.floatValue = average(Gain.floatValue, 0);
}
