function Squelch_changed() {
    Bandwidth.SelectItemByIndex(6000);
}
