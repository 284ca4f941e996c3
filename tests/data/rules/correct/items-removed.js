// What is removed is the first item of that key, name and value; the current one may go, too.
function Squelch_changed() {
    Antenna.RemoveItemFromSelection(11, "Whip", 0.5);
    Antenna.RemoveItemFromSelection(12, "Loop", 99);
    Bandwidth.RemoveItemFromSelection(500, "500 Hz", 500);
    Mode.RemoveItemFromSelection(2, "Memory", 2);
    Comment.stringValue = Antenna.GetItemCount() + " " + Antenna.GetCurrentIndex() + " " + Bandwidth.GetCurrentName();
    Antenna.SelectItemByIndex(13);
}
