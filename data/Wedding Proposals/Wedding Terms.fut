Aisle runner
Arbor with flowers
Boutonniere
Bridal bouquet
Bridal hair and make-up
Bridesmaid bouquet
Cake cutting
Cake topper
Card box
Ceremony arch
Ceremony chairs
Ceremony coordination
Ceremony musician
Corsage
Engagement party
Father of the bride boutonniere
Father of the groom boutonniere
First dance lighting
Flower girl basket
Flower girl petals
Getaway car
Groom's boutonniere
Groom's cake
Guest book with pen
Head table
Honeymoon suite
Memory table
Mother of the bride corsage
Mother of the groom corsage
Officiant
Pew bows
Reception coordination
Rehearsal coordination
Rehearsal dinner
Ring pillow
Save-the-date cards
Sparkler send-off
Sweetheart table
Throw bouquet
Unity candle
Vow renewal
Wedding cake
Wedding invitations
Wedding planner, full service
Wedding programs