function Mode_changed() {
    for (var i = 0; i < Antenna.GetItemCount(); ++i) {
        if (Antenna.GetItemName(i) === "Loop")
            Antenna.SelectItemByIndex(i);
    }
}
