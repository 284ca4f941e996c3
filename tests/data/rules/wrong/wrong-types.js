function ChannelName_changed() {
    Gain.floatValue = parseFloat(ChannelName.stringValue);
    Overlap.value = "7";
    Squelch.boolValue = "false";
    Comment.stringValue = undefined;
    Mode.SelectItemByIndex("Panorama");
}
