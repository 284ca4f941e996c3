// Object.keys and hasOwnProperty
var ALIASES = {usb: "USB", lsb: "LSB"};

function Comment_changed() {
    var name = Comment.stringValue.toLowerCase();
    if (ALIASES.hasOwnProperty(name))
        ChannelName.stringValue = ALIASES[name];
    else
        ChannelName.stringValue = Object.keys(ALIASES).length + " names";
}
