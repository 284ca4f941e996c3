function Muted_changed() {
    for (;;) ;
}
