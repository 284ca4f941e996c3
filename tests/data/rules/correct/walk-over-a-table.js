// for ... in over an object of limits.
var PRIORITIES = {Distress: 10, Safety: 8, Routine: 3};

function ChannelName_changed() {
    for (var word in PRIORITIES) {
        if (ChannelName.stringValue.indexOf(word) >= 0) {
            Priority.value = PRIORITIES[word];
            return;
        }
    }
    Priority.value = 1;
}
