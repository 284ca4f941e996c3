// An integer gets a whole number.
function Gain_changed() {
    var share = (Gain.floatValue - Gain.floatMinValue) / (Gain.floatMaxValue - Gain.floatMinValue);
    Overlap.value = Math.round(share * 100);
}
