// 64-bit numbers are exact up to 2^53.
function MaximumSize_changed() {
    if (MaximumSize.floatValue <= 9007199254740992)
        MaximumSize.floatValue = Math.floor(MaximumSize.floatValue / 1024) * 1024;
    else
        MaximumSize.floatValue = 9007199254740992;
}
