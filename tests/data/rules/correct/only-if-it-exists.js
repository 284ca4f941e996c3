// Not every receiver has a preselector.
function Frequency_changed() {
    if (typeof Preselector === "undefined")
        return;
    Preselector.boolValue = Frequency.floatValue < 30000000;
}
