// The plug-in may set "largest" to something else.
var largest = 100000;
var isNarrow = false;

function Span_changed() {
    if (isNarrow || Span.floatValue > largest)
        Span.floatValue = largest;
}
