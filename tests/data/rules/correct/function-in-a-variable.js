// A rule function may be the value of a variable.
var Gain_changed = function () {
    SquelchLevel.floatValue = Math.max(-20, Math.min(120, Gain.floatValue));
};
