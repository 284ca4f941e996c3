function limited(value) {
    return Math.min(value, 100);
}
function Gain_changed() {
    Level.floatValue = limited(Gain.floatValue);
}
function limited(value) {
    return Math.max(-20, Math.min(value, 50));
}
