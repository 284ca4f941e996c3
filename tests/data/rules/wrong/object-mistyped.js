function Gain_changed() {
    Levl.floatValue = 5;
}
