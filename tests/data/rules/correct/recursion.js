// The next power of two.
function power(limit, value) {
    return value * 2 > limit ? value : power(limit, value * 2);
}

function Overlap_changed() {
    Span.floatValue = power(Overlap.value + 1, 1);
}
