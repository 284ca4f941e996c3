function Gain_changed() {
    if (Gain.floatValue > 100)
        Level.floatValue = limit;
    Level.floatValue = 1;
}
