var count = 0;
function Mode_changed() {
    count++;
    if (count > 3)
        Comment.stringValue = "often";
}
