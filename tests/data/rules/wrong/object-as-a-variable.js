function Mode_changed() {
    Gain = 5;
}
