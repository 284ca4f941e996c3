function Gain_changed() {
    Priority.value = 1 + (Gain.floatValue + 30) / 30;
    Frequency.floatValue = 1000000.5;
}
