function Mode_changed() {
    Mode.GetCurrentIndex = 2;
}
