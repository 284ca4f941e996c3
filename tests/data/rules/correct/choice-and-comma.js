// Nested choices, a comma in a loop.
function Priority_changed() {
    var level = Priority.value > 7 ? 100 : Priority.value > 3 ? 50 : 0, i, k;
    for (i = 0, k = 10; i < k; i++, k--)
        level += 1;
    Level.floatValue = level;
}
