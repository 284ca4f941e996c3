function Gain_changed() {
    var sum = 0;
    for (var x of [1, 2, 3])
        sum += x;
    Level.floatValue = sum;
}
