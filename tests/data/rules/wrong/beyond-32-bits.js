function Frequency_changed() {
    Counter.value = Frequency.floatValue * 1000;
}
