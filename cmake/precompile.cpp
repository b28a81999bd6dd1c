// The compiler wants a source to compile headers with.
