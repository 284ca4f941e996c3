function ChannelName_changed() {
    var number = /(\d+)/.exec(ChannelName.stringValue)[1];
    Comment.stringValue = number;
}
