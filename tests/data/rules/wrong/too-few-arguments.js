function Mode_changed() {
    Antenna.AddItemToSelection(14, "Reserve");
}
