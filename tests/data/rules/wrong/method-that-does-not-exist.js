function Mode_changed() {
    if (Mode.GetCurrentText() === "Panorama")
        Span.floatValue = 200000;
}
