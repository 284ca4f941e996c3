// A table of bandwidths by name; what the selection does not have is left alone.
var BANDWIDTHS = {AM: 9000, FM: 15000, USB: 2700, LSB: 2700, CW: 500};

function Demodulation_changed() {
    var key = BANDWIDTHS[Demodulation.GetCurrentName()];
    if (key !== undefined && Bandwidth.GetItemName(key) !== "")
        Bandwidth.SelectItemByIndex(key);
}
