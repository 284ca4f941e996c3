function Mode_changed() {
    if (Mode.GetCurrentIndex() === 0) {
        const width = 1000;
        Span.floatValue = width;
    }
}
