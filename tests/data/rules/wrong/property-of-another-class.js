function Overlap_changed() {
    if (Overlap.floatValue > 50)
        Level.floatValue = 5;
    Priority.value = 5;
}
