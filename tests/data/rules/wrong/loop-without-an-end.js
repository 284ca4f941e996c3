function Priority_changed() {
    var width = 1;
    while (width !== Priority.value)
        width *= 2;
    Span.floatValue = width;
}
