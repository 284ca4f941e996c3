function Gain_changed() {
    var low = 1;
    var limits = {low, high() { return 5; }};
    Level.floatValue = limits.high();
}
