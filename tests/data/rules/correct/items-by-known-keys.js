// Keys that the script knows, each asked for before it is used.
var KEYS = [13, 12, 11];

function BearingOn_changed() {
    for (var i = 0; i < KEYS.length; ++i) {
        if (Antenna.GetItemName(KEYS[i]) !== "" && Antenna.GetItemValue(KEYS[i]) > 1) {
            Antenna.SelectItemByIndex(KEYS[i]);
            break;
        }
    }
}
