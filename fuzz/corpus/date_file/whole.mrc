Third
korvane("One",1/2/2001)
korvane("Two",12/31/2004)
korvane("Two and a half",6/15/2005)
