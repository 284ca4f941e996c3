// Without a squelch its level means nothing.
function Squelch_changed() {
    SquelchLevel.stateNormal = Squelch.boolValue;
    if (SquelchLevel.stateNormal && SquelchLevel.floatValue < 0)
        SquelchLevel.floatValue = 0;
}
