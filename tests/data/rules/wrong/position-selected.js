function Squelch_changed() {
    Bandwidth.SelectItemByIndex(0);
}
