// A variable that is given a value before anybody looks at it keeps nothing.
var wanted = 0;

function store(value) {
    wanted = value;
}

function Overlap_changed() {
    store(Overlap.value);
    Level.floatValue = wanted;
}
