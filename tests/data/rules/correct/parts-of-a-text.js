// Texts are taken apart and put together.
function ChannelName_changed() {
    var words = ChannelName.stringValue.replace(/[;,]/g, " ").split(/\s+/);
    var initials = "";
    for (var i = 0; i < words.length; ++i)
        initials += words[i].charAt(0).toUpperCase();
    Comment.stringValue = initials.length > 0 ? initials.substr(0, 3) : 'none "yet"';
}
