// Empty: the build needs a source to keep precompiled headers with.
