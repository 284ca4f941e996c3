// const for the whole script or a whole function is a variable that keeps its value.
const WIDEST = 200000;

function Mode_changed() {
    const NARROW = 1000;
    Span.floatValue = Mode.GetCurrentIndex() === 0 ? NARROW : WIDEST;
}
