var last = 0;
function Gain_changed() {
    if (Gain.floatValue > last)
        Level.floatValue = 1;
    last = Gain.floatValue;
}
