// A chain with an end.
function Mode_changed() {
    Demodulation.SelectItemByIndex(Mode.GetCurrentName() === "Panorama" ? 1 : 2);
}

function Demodulation_changed() {
    Bandwidth.SelectItemByIndex(Demodulation.GetCurrentName() === "AM" ? 9000 : 15000);
}

function Bandwidth_changed() {
    Span.floatValue = Bandwidth.GetCurrentValue() * 2;
}
