var Gain = 30;
function Level() {
    return 5;
}
function Mode_changed() {
    Span.floatValue = Level() + Gain;
}
