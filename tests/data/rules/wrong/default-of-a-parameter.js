function limited(value, limit = 100) {
    return Math.min(value, limit);
}
function Gain_changed() {
    Level.floatValue = limited(Gain.floatValue);
}
