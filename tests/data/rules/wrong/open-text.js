function Mode_changed() {
    Comment.stringValue = "watch;
}
