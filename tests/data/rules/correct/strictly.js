"use strict";

// The engine takes it for a text without a meaning.
function Muted_changed() {
    "use strict";
    if (Muted.boolValue)
        Gain.floatValue = 0;
}
