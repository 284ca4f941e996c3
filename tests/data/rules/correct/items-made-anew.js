// The items of a selection depend on the mode.
function Mode_changed() {
    Antenna.DeleteItems();
    Antenna.AddItemToSelection(11, "Whip", 0.5);
    if (Mode.GetCurrentName() === "Panorama")
        Antenna.AddItemToSelection(13, "Array", 8);
    Antenna.SelectItemByIndex(11);
}
