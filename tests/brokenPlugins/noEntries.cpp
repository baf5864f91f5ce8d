/// Brings no entry: it is loaded, says that it fits, and that is all.
