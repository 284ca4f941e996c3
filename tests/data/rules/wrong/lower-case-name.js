function gain_changed() {
    Level.floatValue = 5;
}
