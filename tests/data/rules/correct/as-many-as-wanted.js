// arguments, call and apply
function largest() {
    return Math.max.apply(null, arguments);
}

function Level_changed() {
    SquelchLevel.floatValue = largest(Level.floatValue, -10, 0);
    Gain.floatValue = largest.call(null, 0, Gain.floatValue);
}
