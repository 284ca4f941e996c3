// What belongs together is kept in one text.
function Priority_changed() {
    var notes = {};
    try {
        notes = JSON.parse(Comment.stringValue);
    } catch (fault) {
        notes = {faults: 1};
    }
    notes.priority = Priority.value;
    Comment.stringValue = JSON.stringify(notes);
}
