// Flags in an integer.
var LOUD = 1, BRIGHT = 2;

function Counter_changed() {
    var flags = Counter.value & 3;
    Muted.boolValue = (flags & LOUD) === 0;
    Squelch.boolValue = !!(flags & BRIGHT) || (flags ^ 3) >>> 1 === 1;
}
