function largest(...values) {
    return Math.max(...values);
}
function Gain_changed() {
    var [a, b] = [1, 2];
    Level.floatValue = largest(a, b);
}
