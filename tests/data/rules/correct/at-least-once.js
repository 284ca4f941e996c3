// do ... while
function Overlap_changed() {
    var width = 1;
    do {
        width *= 2;
    } while (width < Overlap.value);
    Span.floatValue = width;
}
