#ifndef GRAPHICS_H
#define GRAPHICS_H

#include "../JCBase.h"
#include "../JavaInc.h"
#include  <assert.h>

namespace NSGraphics{

	extern CACHE_JAVA_CLASS(Graphics);

	extern CACHE_JAVA_METHOD(Graphics, finalize, 0);

	extern CACHE_JAVA_METHOD(Graphics, toString, 1);

	extern CACHE_JAVA_METHOD(Graphics, setColor, 2);

	extern CACHE_JAVA_METHOD(Graphics, create, 3);

	extern CACHE_JAVA_METHOD(Graphics, create, 4);

	extern CACHE_JAVA_METHOD(Graphics, hitClip, 5);

	extern CACHE_JAVA_METHOD(Graphics, clipRect, 6);

	extern CACHE_JAVA_METHOD(Graphics, getFontMetrics, 7);

	extern CACHE_JAVA_METHOD(Graphics, getFontMetrics, 8);

	extern CACHE_JAVA_METHOD(Graphics, setFont, 9);

	extern CACHE_JAVA_METHOD(Graphics, getFont, 10);

	extern CACHE_JAVA_METHOD(Graphics, dispose, 11);

	extern CACHE_JAVA_METHOD(Graphics, getClipBounds, 12);

	extern CACHE_JAVA_METHOD(Graphics, getClipBounds, 13);

	extern CACHE_JAVA_METHOD(Graphics, setClip, 14);

	extern CACHE_JAVA_METHOD(Graphics, setClip, 15);

	extern CACHE_JAVA_METHOD(Graphics, clearRect, 16);

	extern CACHE_JAVA_METHOD(Graphics, translate, 17);

	extern CACHE_JAVA_METHOD(Graphics, getClip, 18);

	extern CACHE_JAVA_METHOD(Graphics, drawImage, 19);

	extern CACHE_JAVA_METHOD(Graphics, drawImage, 20);

	extern CACHE_JAVA_METHOD(Graphics, drawImage, 21);

	extern CACHE_JAVA_METHOD(Graphics, drawImage, 22);

	extern CACHE_JAVA_METHOD(Graphics, drawImage, 23);

	extern CACHE_JAVA_METHOD(Graphics, drawImage, 24);

	extern CACHE_JAVA_METHOD(Graphics, getColor, 25);

	extern CACHE_JAVA_METHOD(Graphics, draw3DRect, 26);

	extern CACHE_JAVA_METHOD(Graphics, fill3DRect, 27);

	extern CACHE_JAVA_METHOD(Graphics, drawString, 28);

	extern CACHE_JAVA_METHOD(Graphics, drawString, 29);

	extern CACHE_JAVA_METHOD(Graphics, fillRect, 30);

	extern CACHE_JAVA_METHOD(Graphics, setPaintMode, 31);

	extern CACHE_JAVA_METHOD(Graphics, setXORMode, 32);

	extern CACHE_JAVA_METHOD(Graphics, copyArea, 33);

	extern CACHE_JAVA_METHOD(Graphics, drawLine, 34);

	extern CACHE_JAVA_METHOD(Graphics, drawRect, 35);

	extern CACHE_JAVA_METHOD(Graphics, drawRoundRect, 36);

	extern CACHE_JAVA_METHOD(Graphics, fillRoundRect, 37);

	extern CACHE_JAVA_METHOD(Graphics, drawOval, 38);

	extern CACHE_JAVA_METHOD(Graphics, fillOval, 39);

	extern CACHE_JAVA_METHOD(Graphics, drawArc, 40);

	extern CACHE_JAVA_METHOD(Graphics, fillArc, 41);

	extern CACHE_JAVA_METHOD(Graphics, drawPolyline, 42);

	extern CACHE_JAVA_METHOD(Graphics, drawPolygon, 43);

	extern CACHE_JAVA_METHOD(Graphics, drawPolygon, 44);

	extern CACHE_JAVA_METHOD(Graphics, fillPolygon, 45);

	extern CACHE_JAVA_METHOD(Graphics, fillPolygon, 46);

	extern CACHE_JAVA_METHOD(Graphics, drawChars, 47);

	extern CACHE_JAVA_METHOD(Graphics, drawBytes, 48);

	extern CACHE_JAVA_METHOD(Graphics, getClipRect, 49);

	void finalize(JNIEnv *env, jobject _this); //0 ()V

	jobject toString(JNIEnv *env, jobject _this); //1 ()Ljava/lang/String;

	void setColor(JNIEnv *env, jobject _this, jobject Color0); //2 (Ljava/awt/Color;)V

	jobject create(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //3 (IIII)Ljava/awt/Graphics;

	jobject create(JNIEnv *env, jobject _this); //4 ()Ljava/awt/Graphics;

	jboolean hitClip(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //5 (IIII)Z

	void clipRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //6 (IIII)V

	jobject getFontMetrics(JNIEnv *env, jobject _this); //7 ()Ljava/awt/FontMetrics;

	jobject getFontMetrics(JNIEnv *env, jobject _this, jobject Font0); //8 (Ljava/awt/Font;)Ljava/awt/FontMetrics;

	void setFont(JNIEnv *env, jobject _this, jobject Font0); //9 (Ljava/awt/Font;)V

	jobject getFont(JNIEnv *env, jobject _this); //10 ()Ljava/awt/Font;

	void dispose(JNIEnv *env, jobject _this); //11 ()V

	jobject getClipBounds(JNIEnv *env, jobject _this); //12 ()Ljava/awt/Rectangle;

	jobject getClipBounds(JNIEnv *env, jobject _this, jobject Rectangle0); //13 (Ljava/awt/Rectangle;)Ljava/awt/Rectangle;

	void setClip(JNIEnv *env, jobject _this, jobject Shape0); //14 (Ljava/awt/Shape;)V

	void setClip(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //15 (IIII)V

	void clearRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //16 (IIII)V

	void translate(JNIEnv *env, jobject _this, jint Int0, jint Int1); //17 (II)V

	jobject getClip(JNIEnv *env, jobject _this); //18 ()Ljava/awt/Shape;

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5, jint Int6, jint Int7, jint Int8, jobject Color9, jobject ImageObserver10); //19 (Ljava/awt/Image;IIIIIIIILjava/awt/Color;Ljava/awt/image/ImageObserver;)Z

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jobject Color5, jobject ImageObserver6); //20 (Ljava/awt/Image;IIIILjava/awt/Color;Ljava/awt/image/ImageObserver;)Z

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jobject Color3, jobject ImageObserver4); //21 (Ljava/awt/Image;IILjava/awt/Color;Ljava/awt/image/ImageObserver;)Z

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jobject ImageObserver3); //22 (Ljava/awt/Image;IILjava/awt/image/ImageObserver;)Z

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jobject ImageObserver5); //23 (Ljava/awt/Image;IIIILjava/awt/image/ImageObserver;)Z

	jboolean drawImage(JNIEnv *env, jobject _this, jobject Image0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5, jint Int6, jint Int7, jint Int8, jobject ImageObserver9); //24 (Ljava/awt/Image;IIIIIIIILjava/awt/image/ImageObserver;)Z

	jobject getColor(JNIEnv *env, jobject _this); //25 ()Ljava/awt/Color;

	void draw3DRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jboolean Boolean4); //26 (IIIIZ)V

	void fill3DRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jboolean Boolean4); //27 (IIIIZ)V

	void drawString(JNIEnv *env, jobject _this, jobject String0, jint Int1, jint Int2); //28 (Ljava/lang/String;II)V

	void drawStringWithAttributedCharacterIteratorIntInt(JNIEnv *env, jobject _this, jobject AttributedCharacterIterator0, jint Int1, jint Int2); //29 (Ljava/text/AttributedCharacterIterator;II)V

	void fillRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //30 (IIII)V

	void setPaintMode(JNIEnv *env, jobject _this); //31 ()V

	void setXORMode(JNIEnv *env, jobject _this, jobject Color0); //32 (Ljava/awt/Color;)V

	void copyArea(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5); //33 (IIIIII)V

	void drawLine(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //34 (IIII)V

	void drawRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //35 (IIII)V

	void drawRoundRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5); //36 (IIIIII)V

	void fillRoundRect(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5); //37 (IIIIII)V

	void drawOval(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //38 (IIII)V

	void fillOval(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3); //39 (IIII)V

	void drawArc(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5); //40 (IIIIII)V

	void fillArc(JNIEnv *env, jobject _this, jint Int0, jint Int1, jint Int2, jint Int3, jint Int4, jint Int5); //41 (IIIIII)V

	void drawPolyline(JNIEnv *env, jobject _this, jintArray Int0, jintArray Int1, jint Int2); //42 ([I[II)V

	void drawPolygon(JNIEnv *env, jobject _this, jobject Polygon0); //43 (Ljava/awt/Polygon;)V

	void drawPolygon(JNIEnv *env, jobject _this, jintArray Int0, jintArray Int1, jint Int2); //44 ([I[II)V

	void fillPolygon(JNIEnv *env, jobject _this, jobject Polygon0); //45 (Ljava/awt/Polygon;)V

	void fillPolygon(JNIEnv *env, jobject _this, jintArray Int0, jintArray Int1, jint Int2); //46 ([I[II)V

	void drawChars(JNIEnv *env, jobject _this, jcharArray Char0, jint Int1, jint Int2, jint Int3, jint Int4); //47 ([CIIII)V

	void drawBytes(JNIEnv *env, jobject _this, jbyteArray Byte0, jint Int1, jint Int2, jint Int3, jint Int4); //48 ([BIIII)V

	jobject getClipRect(JNIEnv *env, jobject _this); //49 ()Ljava/awt/Rectangle;

	JNIEXPORT void JNICALL Init(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
	JNIEXPORT void JNICALL Destroy(jvmtiEnv *jvmti_env, JNIEnv *jni_env);
}
#endif
