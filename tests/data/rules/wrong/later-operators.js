function Gain_changed() {
    var square = Gain.floatValue ** 2;
    var level = square ?? 0;
    Level.floatValue = level?.value;
}
