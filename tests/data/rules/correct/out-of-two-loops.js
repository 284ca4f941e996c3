// A label to leave two loops at once.
function Counter_changed() {
    var found = -1;
    outer:
    for (var i = 0; i < 5; i++) {
        for (var k = 0; k < 5; k++) {
            if (i * k === 6) {
                found = i;
                break outer;
            }
            if (k > 3)
                continue outer;
        }
    }
    Priority.value = found;
}
