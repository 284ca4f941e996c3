function Gain_changed() {
    let half = Gain.floatValue / 2;
    var limit = x => Math.min(x, 100);
    Level.floatValue = limit(half);
}
