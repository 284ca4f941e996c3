function Gain_changed() {
    if Gain.floatValue > 3
        Level.floatValue = 3;
}
