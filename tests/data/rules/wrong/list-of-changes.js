var changes = [];
function Mode_changed() {
    changes.push(Mode.GetCurrentName());
    Comment.stringValue = changes.join(" ");
}
