var a = 1;
/* what follows
function Mode_changed() {
    Comment.stringValue = "watch";
}
