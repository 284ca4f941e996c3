function Squelch_changed() {
    Antenna.AddItemToSelection(12, "Second loop", 1.5);
}
