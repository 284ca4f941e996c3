function Gain_changed() {
    Level.floatValue = 3 * / 4;
}
